#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

namespace DockCore {

/// The base of everything that this system throws. It carries one sentence for the person who reads it.
class Error : public std::exception {
public:
    explicit Error(const QString& description)
        : m_description(description)
        , m_utf8(description.toUtf8()) {}

    QString description() const { return m_description; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_description;
    QByteArray m_utf8;
};

/// A file could not be read, written or understood; the sentence names the file and the system's reason.
class FileError : public Error {
public:
    using Error::Error;
};

} // namespace DockCore
