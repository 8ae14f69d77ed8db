#pragma once

#include <QByteArray>

#include <ctime>

namespace Fakes {

/// Lets the computer be somewhere else for as long as this lives. Main thread only.
class TimeZone {
public:
    explicit TimeZone(const QByteArray& name)
        : m_wasSet(qEnvironmentVariableIsSet("TZ"))
        , m_previous(qgetenv("TZ")) {
        qputenv("TZ", name);
        tzset();
    }
    ~TimeZone() {
        if (m_wasSet)
            qputenv("TZ", m_previous);
        else
            qunsetenv("TZ");
        tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;

private:
    bool m_wasSet;
    QByteArray m_previous;
};

} // namespace Fakes
