#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace Kelvane {

/// A list of values as QML sees it: a role for each property of the values' type, under its name. `RowListOf` holds the
/// values. Main thread only.
class RowListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("View models own their lists.")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    int count() const { return rowCount({}); }
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

protected:
    explicit RowListModel(const QMetaObject& rowType);

    /// The value at `place`, which exists.
    virtual const void* valueAt(int place) const = 0;

private:
    const QMetaObject& m_rowType;
};

} // namespace Kelvane
