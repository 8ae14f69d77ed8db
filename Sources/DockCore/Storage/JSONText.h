#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QStringView>

namespace DockCore {

/// JSON in the house form, written front to back: indented by four, one member a line. The caller brings the members of
/// an object in the order of their keys. It is for what is too large to be built as a QJsonValue first.
class JSONText {
public:
    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    /// The key of the next value, inside an object.
    void key(QStringView key);
    void value(bool value);
    void value(qint64 value);
    void value(double value);
    void value(const QString& value);
    /// Any value, with everything in it.
    void value(const QJsonValue& value);

    const QByteArray& bytes() const { return m_bytes; }
    /// False once a number came that is infinite or none at all, which JSON has no word for.
    bool isValid() const { return m_isValid; }

private:
    void begin(char bracket);
    void end(char bracket);
    void startEntry();
    void startLine();
    void append(QStringView string);

    QByteArray m_bytes;
    qsizetype m_depth = 0;
    bool m_isEmpty = true;
    bool m_followsKey = false;
    bool m_isValid = true;
};

} // namespace DockCore
