#include "Kelvane/Commands/CommandMessage.h"

#include "DockCore/Storage/JSONForm.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {
// The shortest limit of the systems we run on is 104 bytes, and while it is made a socket carries a longer name.
constexpr qsizetype longestSocketPath = 84;

QByteArray line(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<QJsonObject> objectIn(const QByteArray& line) {
    const QJsonDocument document = QJsonDocument::fromJson(line);
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}
} // namespace

QByteArray CommandRequest::toLine() const {
    if (kind == Kind::showWindow)
        return line({{u"show"_s, true}});
    return line({{u"arguments"_s, QJsonValue::fromVariant(arguments)}, {u"colour"_s, colour == Colour::terminal}});
}

std::optional<CommandRequest> CommandRequest::fromLine(const QByteArray& text) {
    const std::optional<QJsonObject> object = objectIn(text);
    if (!object)
        return std::nullopt;
    if (object->value(u"show").toBool())
        return CommandRequest{.kind = Kind::showWindow};
    const std::optional<QStringList> arguments = JSONForm<QStringList>::read(object->value(u"arguments"));
    if (!arguments || !object->value(u"colour").isBool())
        return std::nullopt;
    return CommandRequest{.arguments = *arguments,
                          .colour = object->value(u"colour").toBool() ? Colour::terminal : Colour::none};
}

QByteArray toLine(const Answer& answer) {
    return line({{u"status"_s, answer.status}, {u"output"_s, answer.output}, {u"error"_s, answer.error}});
}

std::optional<Answer> answerFromLine(const QByteArray& text) {
    const std::optional<QJsonObject> object = objectIn(text);
    if (!object || !object->value(u"status").isDouble() || !object->value(u"output").isString() ||
        !object->value(u"error").isString())
        return std::nullopt;
    return Answer{.status = object->value(u"status").toInt(Answer::failed),
                  .output = object->value(u"output").toString(),
                  .error = object->value(u"error").toString()};
}

QString commandSocketPath(const QString& supportFolder) {
    const QString canonical = QFileInfo(supportFolder).canonicalFilePath();
    const QString folder =
        canonical.isEmpty() ? QDir::cleanPath(QFileInfo(supportFolder).absoluteFilePath()) : canonical;
    const QString inside = folder + u"/socket"_s;
    if (QFile::encodeName(inside).size() <= longestSocketPath)
        return inside;
    const QByteArray digest = QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha256).toHex().left(20);
    // Both sides must come to the same place whatever their environment says of folders, so it is fixed; who owns the
    // socket is looked at before it is used.
    return u"/tmp/kelvane-"_s + QString::fromLatin1(digest);
}

} // namespace Kelvane
