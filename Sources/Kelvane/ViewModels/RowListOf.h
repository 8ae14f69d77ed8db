#pragma once

#include "Kelvane/ViewModels/RowListModel.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

namespace Kelvane {

/// The list model of one type of values. New values are set whole; views are told only of rows that came, went, moved
/// or changed, so that scroll position and keyboard focus stay with their rows. `Row` is a gadget whose properties are
/// the roles, with `==` and a `QString key() const`. Main thread only.
template <typename Row>
class RowListOf : public RowListModel {
public:
    RowListOf()
        : RowListModel(Row::staticMetaObject) {}

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }

    const QList<Row>& rows() const { return m_rows; }

    void setRows(const QList<Row>& rows) {
        const QStringList wanted = uniqueKeys(rows);
        removeAllBut(wanted);
        for (qsizetype i = 0; i < rows.size(); ++i)
            bringTo(i, wanted[i], rows[i]);
    }

protected:
    const void* valueAt(int place) const override { return &m_rows[place]; }

private:
    /// A key that occurs again gets a number.
    static QStringList uniqueKeys(const QList<Row>& rows) {
        QStringList keys;
        QHash<QString, int> seen;
        for (const Row& row : rows) {
            const QString key = row.key();
            keys.append(key + QChar(u'\n') + QString::number(seen[key]++));
        }
        return keys;
    }

    void removeAllBut(const QStringList& wanted) {
        const QSet<QString> kept(wanted.begin(), wanted.end());
        for (qsizetype last = m_rows.size() - 1; last >= 0; --last) {
            if (kept.contains(m_keys[last]))
                continue;
            qsizetype first = last;
            while (first > 0 && !kept.contains(m_keys[first - 1]))
                --first;
            beginRemoveRows({}, static_cast<int>(first), static_cast<int>(last));
            m_rows.remove(first, last - first + 1);
            m_keys.remove(first, last - first + 1);
            endRemoveRows();
            last = first;
        }
    }

    void bringTo(qsizetype place, const QString& key, const Row& row) {
        const int to = static_cast<int>(place);
        const qsizetype from = m_keys.indexOf(key, place);
        if (from < 0) {
            beginInsertRows({}, to, to);
            m_rows.insert(place, row);
            m_keys.insert(place, key);
            endInsertRows();
            return;
        }
        if (from != place) {
            beginMoveRows({}, static_cast<int>(from), static_cast<int>(from), {}, to);
            m_rows.move(from, place);
            m_keys.move(from, place);
            endMoveRows();
        }
        if (m_rows[place] != row) {
            m_rows[place] = row;
            Q_EMIT dataChanged(index(to), index(to));
        }
    }

    QList<Row> m_rows;
    QStringList m_keys;
};

} // namespace Kelvane
