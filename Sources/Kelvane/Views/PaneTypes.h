#pragma once

#include "Kelvane/ViewModels/FirstRunViewModel.h"
#include "Kelvane/ViewModels/HistoryViewModel.h"
#include "Kelvane/ViewModels/ProfilesViewModel.h"
#include "Kelvane/ViewModels/SettingsViewModel.h"
#include "Kelvane/ViewModels/UsageViewModel.h"
#include "Kelvane/ViewModels/ViewContext.h"

#include <QtQml/qqml.h>

/// What the panes and the first run show, under their QML names. The engine owns what `create` makes.
namespace Kelvane::QmlTypes {

struct UsageType {
    Q_GADGET
    QML_FOREIGN(Kelvane::UsageViewModel)
    QML_NAMED_ELEMENT(UsageViewModel)
    QML_SINGLETON
public:
    static Kelvane::UsageViewModel* create(QQmlEngine*, QJSEngine*) {
        return new Kelvane::UsageViewModel(ViewContext::current().model);
    }
};

struct ProfilesType {
    Q_GADGET
    QML_FOREIGN(Kelvane::ProfilesViewModel)
    QML_NAMED_ELEMENT(ProfilesViewModel)
    QML_SINGLETON
public:
    static Kelvane::ProfilesViewModel* create(QQmlEngine*, QJSEngine*) {
        return new Kelvane::ProfilesViewModel(ViewContext::current().model);
    }
};

struct HistoryType {
    Q_GADGET
    QML_FOREIGN(Kelvane::HistoryViewModel)
    QML_NAMED_ELEMENT(HistoryViewModel)
    QML_SINGLETON
public:
    static Kelvane::HistoryViewModel* create(QQmlEngine*, QJSEngine*) {
        return new Kelvane::HistoryViewModel(ViewContext::current().model);
    }
};

struct SettingsType {
    Q_GADGET
    QML_FOREIGN(Kelvane::SettingsViewModel)
    QML_NAMED_ELEMENT(SettingsViewModel)
    QML_SINGLETON
public:
    static Kelvane::SettingsViewModel* create(QQmlEngine*, QJSEngine*) {
        return new Kelvane::SettingsViewModel(ViewContext::current().model, ViewContext::current().desktop);
    }
};

struct FirstRunType {
    Q_GADGET
    QML_FOREIGN(Kelvane::FirstRunViewModel)
    QML_NAMED_ELEMENT(FirstRunViewModel)
    QML_SINGLETON
public:
    static Kelvane::FirstRunViewModel* create(QQmlEngine*, QJSEngine*) {
        return new Kelvane::FirstRunViewModel(ViewContext::current().model);
    }
};

// What these hand out.

struct RankingType {
    Q_GADGET
    QML_FOREIGN(Kelvane::RankingModel)
    QML_ANONYMOUS
};

struct DayChartType {
    Q_GADGET
    QML_FOREIGN(Kelvane::DayChartModel)
    QML_ANONYMOUS
};

struct ProfileListType {
    Q_GADGET
    QML_FOREIGN(Kelvane::ProfileListModel)
    QML_ANONYMOUS
};

struct AppListType {
    Q_GADGET
    QML_FOREIGN(Kelvane::AppListModel)
    QML_NAMED_ELEMENT(AppListModel)
    QML_UNCREATABLE("The editor owns its lists.")
};

struct ProfileEditorType {
    Q_GADGET
    QML_FOREIGN(Kelvane::ProfileEditor)
    QML_ANONYMOUS
};

struct AppPickerType {
    Q_GADGET
    QML_FOREIGN(Kelvane::AppPicker)
    QML_ANONYMOUS
};

struct AppPickerListType {
    Q_GADGET
    QML_FOREIGN(Kelvane::AppPickerModel)
    QML_ANONYMOUS
};

struct SnapshotListType {
    Q_GADGET
    QML_FOREIGN(Kelvane::SnapshotListModel)
    QML_ANONYMOUS
};

struct ChoiceListType {
    Q_GADGET
    QML_FOREIGN(Kelvane::ChoiceListModel)
    QML_ANONYMOUS
};

} // namespace Kelvane::QmlTypes
