#pragma once

#include "DockCore/Storage/PropertyList.h"

#include <QHash>

namespace DockCore {

/// Lays out one property list in the binary format. Equal values always become equal bytes, which libplist does not
/// promise: it shares equal data or not, as the memory happens to lie. Use one for one list.
class BinaryPropertyListWriter {
public:
    /// The bytes of `list`; empty when it nests too deep or holds something that the format cannot.
    QByteArray write(const PropertyList& list);

private:
    struct Object {
        /// The marker, and the value unless this is a container.
        QByteArray bytes;
        QList<quint32> references;
    };

    bool add(const PropertyList& list, int levels);
    bool addArray(const PropertyList::Array& array, int levels);
    bool addDictionary(const PropertyList::Dictionary& dictionary, int levels);
    bool addScalar(const QByteArray& bytes);
    QByteArray assembled() const;

    QList<Object> m_objects;
    /// Where each value that is no container stands; it is written once.
    QHash<QByteArray, quint32> m_scalars;
    /// The number of the object that the last successful `add` stands for.
    quint32 m_lastAdded = 0;
};

} // namespace DockCore
