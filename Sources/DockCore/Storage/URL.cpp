#include "DockCore/Storage/URL.h"

#include <QByteArray>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace DockCore {

namespace {

/// Where the parts of a URL's text lie.
struct Layout {
    qsizetype authority = 0;
    qsizetype path = 0;
    qsizetype end = 0;
};

qsizetype indexOfAny(const QString& text, QStringView characters, qsizetype from) {
    for (qsizetype index = from; index < text.size(); ++index) {
        if (characters.contains(text[index]))
            return index;
    }
    return text.size();
}

Layout layout(const QString& text) {
    Layout result;
    const qsizetype colon = indexOfAny(text, u":/?#", 0);
    if (colon < text.size() && text[colon] == u':')
        result.path = colon + 1;
    result.authority = result.path;
    if (QStringView(text).mid(result.path).startsWith(u"//")) {
        result.authority = result.path + 2;
        result.path = indexOfAny(text, u"/?#", result.authority);
    }
    result.end = indexOfAny(text, u"?#", result.path);
    return result;
}

bool isHexDigit(char byte) {
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'F') || (byte >= 'a' && byte <= 'f');
}

bool isLetterOrDigit(char byte) {
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

void appendEncoded(QByteArray& result, char byte) {
    static const char digits[] = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    result.append('%').append(digits[value >> 4]).append(digits[value & 15]);
}

/// The text with what a URL may not hold encoded, and nothing else changed.
QString encoded(const QString& text) {
    const Layout parts = layout(text);
    const qsizetype hostBegin = QStringView(text).first(parts.authority).toUtf8().size();
    const qsizetype hostEnd = QStringView(text).first(parts.path).toUtf8().size();
    const QByteArray bytes = text.toUtf8();
    QByteArray result;
    result.reserve(bytes.size());
    bool inFragment = false;
    for (qsizetype index = 0; index < bytes.size(); ++index) {
        const char byte = bytes[index];
        bool allowed = isLetterOrDigit(byte) || QByteArrayView("-._~:/?@!$&'()*+,;=").contains(byte);
        if (byte == '%') {
            allowed = index + 2 < bytes.size() && isHexDigit(bytes[index + 1]) && isHexDigit(bytes[index + 2]);
        } else if (byte == '#') {
            allowed = !inFragment;
            inFragment = true;
        } else if (byte == '[' || byte == ']') {
            allowed = index >= hostBegin && index < hostEnd;
        }
        if (allowed)
            result.append(byte);
        else
            appendEncoded(result, byte);
    }
    return QString::fromLatin1(result);
}

/// QUrl normalises what it parses, so it only has a say in whether this is a URL. A host it takes for a domain name,
/// and refuses names that a computer in the local network may well have; it gets to see another one.
bool isWellFormed(const QString& text) {
    const Layout parts = layout(text);
    QString authority = text.sliced(parts.authority, parts.path - parts.authority);
    const qsizetype host = authority.lastIndexOf(u'@') + 1;
    const qsizetype hostEnd = indexOfAny(authority, u":", host);
    if (host < hostEnd && authority[host] != u'[')
        authority.replace(host, hostEnd - host, u'h');
    return QUrl(text.first(parts.authority) + authority + text.sliced(parts.path), QUrl::StrictMode).isValid();
}

} // namespace

std::optional<URL> URL::parse(const QString& text) {
    if (text.isEmpty())
        return std::nullopt;
    URL url{encoded(text)};
    return isWellFormed(url.absoluteString) ? std::optional(url) : std::nullopt;
}

URL URL::folder(const QString& path) {
    QByteArray result("file://");
    const QByteArray bytes = path.toUtf8();
    for (const char byte : bytes) {
        // A semicolon would begin a parameter for readers that follow the older rules.
        if (isLetterOrDigit(byte) || QByteArrayView("-._~:/@!$&'()*+,=").contains(byte))
            result.append(byte);
        else
            appendEncoded(result, byte);
    }
    if (!result.endsWith('/'))
        result.append('/');
    return {QString::fromLatin1(result)};
}

QString URL::path() const {
    const Layout parts = layout(absoluteString);
    const QStringView written = QStringView(absoluteString).sliced(parts.path, parts.end - parts.path);
    QString decoded = QString::fromUtf8(QByteArray::fromPercentEncoding(written.toUtf8()));
    while (decoded.size() > 1 && decoded.endsWith(u'/'))
        decoded.chop(1);
    return decoded;
}

QString URL::lastPathComponent() const {
    const QString whole = path();
    if (whole == u"/"_s)
        return whole;
    return whole.sliced(whole.lastIndexOf(u'/') + 1);
}

QString URL::pathExtension() const {
    const QString name = lastPathComponent();
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.sliced(dot + 1) : QString();
}

} // namespace DockCore
