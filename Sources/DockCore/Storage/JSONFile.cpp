#include "DockCore/Storage/JSONFile.h"

#include "DockCore/Error.h"
#include "DockCore/Storage/AtomicFile.h"
#include "DockCore/Storage/BoundedFile.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {
/// Some twenty times what a thousand applications fill in 91 days. Parsing takes several times the size of the file.
constexpr qint64 largestFile = 64LL * 1024 * 1024;

/// Whether every number in it is finite: QJsonDocument writes null for one that is not.
bool isFinite(const QJsonValue& value) {
    const auto all = [](const auto& values) { return std::all_of(values.constBegin(), values.constEnd(), isFinite); };
    if (value.isArray())
        return all(value.toArray());
    if (value.isObject())
        return all(value.toObject());
    return !value.isDouble() || std::isfinite(value.toDouble());
}

/// Puts the brackets of empty arrays and objects, which QJsonDocument spreads over two lines, side by side. Inside a
/// string no line break stands unescaped.
QByteArray withoutEmptyLines(QByteArray text) {
    for (qsizetype end = text.indexOf('\n'); end > 0; end = text.indexOf('\n', end + 1)) {
        const char opening = text.at(end - 1);
        if (opening != '{' && opening != '[')
            continue;
        qsizetype next = end + 1;
        while (text.at(next) == ' ')
            ++next;
        if (text.at(next) == (opening == '{' ? '}' : ']'))
            text.remove(end, next - end);
    }
    return text;
}
} // namespace

void JSONFile::save(const QJsonValue& value, const QString& path) {
    Q_ASSERT(value.isObject() || value.isArray());
    if (!isFinite(value))
        throw FileError(
            u"“%1” could not be saved: a number in it cannot be written."_s.arg(QFileInfo(path).fileName()));
    const QJsonDocument document = value.isObject() ? QJsonDocument(value.toObject()) : QJsonDocument(value.toArray());
    AtomicFile::save(withoutEmptyLines(document.toJson()), path, AtomicFile::Access::ownerOnly);
}

std::optional<QJsonValue> JSONFile::read(const QString& path) {
    const QJsonDocument document = QJsonDocument::fromJson(BoundedFile::read(path, largestFile).bytes);
    if (document.isObject())
        return document.object();
    if (document.isArray())
        return document.array();
    return std::nullopt;
}

} // namespace DockCore
