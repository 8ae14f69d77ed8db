#include "Kelvane/ViewModels/IconAddress.h"

#include <QByteArray>
#include <QStringList>

namespace Kelvane {

using namespace Qt::StringLiterals;

namespace {

constexpr auto encoding = QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals;

QString encoded(const QString& text) {
    return QString::fromLatin1(text.toUtf8().toBase64(encoding));
}

} // namespace

QString IconAddress::url() const {
    return u"image://icon/"_s + encoded(bundleID) + u'.' + encoded(name) + u'.' + encoded(path);
}

std::optional<IconAddress> IconAddress::parse(const QString& text) {
    const QStringList parts = text.split(u'.');
    if (parts.size() != 3)
        return std::nullopt;
    QStringList decoded;
    for (const QString& part : parts) {
        const auto result =
            QByteArray::fromBase64Encoding(part.toLatin1(), encoding | QByteArray::AbortOnBase64DecodingErrors);
        if (!result)
            return std::nullopt;
        decoded.append(QString::fromUtf8(*result));
    }
    return IconAddress{decoded[0], decoded[1], decoded[2]};
}

} // namespace Kelvane
