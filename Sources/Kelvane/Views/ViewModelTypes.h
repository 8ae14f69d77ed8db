#pragma once

#include "Kelvane/ViewModels/AppFacade.h"
#include "Kelvane/ViewModels/Appearance.h"
#include "Kelvane/ViewModels/DockViewModel.h"
#include "Kelvane/ViewModels/TileListModel.h"
#include "Kelvane/ViewModels/TypeStyle.h"

#include <QJSEngine>
#include <QtQml/qqml.h>

/// The view models under their QML names. They live in a library of their own, without Quick; the module is here.
namespace Kelvane::QmlTypes {

struct AppFacadeType {
    Q_GADGET
    QML_FOREIGN(Kelvane::AppFacade)
    QML_NAMED_ELEMENT(App)
    QML_SINGLETON
public:
    static Kelvane::AppFacade* create(QQmlEngine* engine, QJSEngine* script) {
        return Kelvane::AppFacade::create(engine, script);
    }
};

struct AppearanceType {
    Q_GADGET
    QML_FOREIGN(Kelvane::Appearance)
    QML_NAMED_ELEMENT(Appearance)
    QML_SINGLETON
public:
    static Kelvane::Appearance* create(QQmlEngine*, QJSEngine*) {
        QJSEngine::setObjectOwnership(&Kelvane::Appearance::shared(), QJSEngine::CppOwnership);
        return &Kelvane::Appearance::shared();
    }
};

struct TypeStyleType {
    Q_GADGET
    QML_FOREIGN(Kelvane::TypeStyle)
    QML_NAMED_ELEMENT(TypeStyle)
};

struct DockViewModelType {
    Q_GADGET
    QML_FOREIGN(Kelvane::DockViewModel)
    QML_NAMED_ELEMENT(DockViewModel)
    QML_SINGLETON
public:
    static Kelvane::DockViewModel* create(QQmlEngine* engine, QJSEngine* script) {
        return Kelvane::DockViewModel::create(engine, script);
    }
};

struct TileListModelType {
    Q_GADGET
    QML_FOREIGN(Kelvane::TileListModel)
    QML_NAMED_ELEMENT(TileListModel)
    QML_UNCREATABLE("View models make it")
};

} // namespace Kelvane::QmlTypes
