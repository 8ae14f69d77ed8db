#pragma once

#include <QByteArray>

#include <memory>
#include <optional>

struct xcb_connection_t;

/// Windows and a window manager as X11 clients see them: it makes windows that claim whatever a test wants, and says
/// which one is active.
class StandInWindows {
public:
    struct Properties {
        std::optional<quint32> process = std::nullopt;
        QByteArray type = QByteArray();
        /// Instance and class, each with a zero behind it.
        QByteArray className = QByteArray();
        QByteArray title = QByteArray();
    };

    /// Connects to the display that the environment names.
    StandInWindows();

    quint32 make(const Properties& properties);
    void destroy(quint32 window);
    /// Declares `window` active; 0 for none.
    void activate(quint32 window);
    /// The same without waiting for the server, for floods.
    void activateSoon(quint32 window);
    /// Waits until the server has done all of it.
    void finish();

private:
    quint32 atom(const QByteArray& name);

    struct Disconnect {
        void operator()(xcb_connection_t* connection) const;
    };
    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    quint32 m_root = 0;
    quint32 m_activeWindow = 0;
};
