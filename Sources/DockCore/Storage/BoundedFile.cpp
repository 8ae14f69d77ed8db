#include "DockCore/Storage/BoundedFile.h"

#include <QFile>

#include <filesystem>
#include <system_error>

namespace DockCore {

BoundedFile BoundedFile::read(const QString& path, qint64 limit) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(QFile::encodeName(path).constData(), error);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        return {State::notRegular, {}};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        const bool isMissing = status.type() == std::filesystem::file_type::not_found;
        return {isMissing ? State::missing : State::unreadable, {}, file.errorString()};
    }
    const qint64 size = file.size();
    if (size > limit)
        return {State::tooLarge, {}};
    // One byte more than there is, and no more than that, as reading sets aside all that it is asked for.
    qint64 expected = size + 1;
    QByteArray bytes = file.read(expected);
    // The file has grown since it was measured.
    for (; bytes.size() == expected && expected <= limit; expected *= 2)
        bytes += file.read(expected);
    if (file.error() != QFileDevice::NoError)
        return {State::unreadable, {}, file.errorString()};
    if (bytes.size() > limit)
        return {State::tooLarge, {}};
    return {State::read, bytes};
}

} // namespace DockCore
