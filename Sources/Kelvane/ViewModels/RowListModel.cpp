#include "Kelvane/ViewModels/RowListModel.h"

#include <QMetaProperty>

namespace Kelvane {

namespace {
constexpr int firstRole = Qt::UserRole + 1;
} // namespace

RowListModel::RowListModel(const QMetaObject& rowType)
    : m_rowType(rowType) {
    connect(this, &QAbstractItemModel::rowsInserted, this, &RowListModel::countChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &RowListModel::countChanged);
}

QVariant RowListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    return m_rowType.property(role - firstRole).readOnGadget(valueAt(index.row()));
}

QHash<int, QByteArray> RowListModel::roleNames() const {
    QHash<int, QByteArray> names;
    for (int property = 0; property < m_rowType.propertyCount(); ++property)
        names.insert(firstRole + property, m_rowType.property(property).name());
    return names;
}

} // namespace Kelvane
