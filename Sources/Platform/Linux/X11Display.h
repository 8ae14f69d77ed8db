#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QString>

#include <array>
#include <chrono>
#include <memory>
#include <optional>

struct xcb_connection_t;

namespace Platform {

/// A window as its owner and the window manager describe it. A plain value.
struct X11Window {
    quint32 id = 0;
    /// The process that says it made the window; anybody may say anything here.
    std::optional<qint64> process;
    /// An ordinary window or a dialogue, unlike panels, desktops, notifications and splash screens.
    bool isOrdinary = true;
    /// The window's class, else its title; what is no text in it is replaced.
    QString name;
    bool operator==(const X11Window&) const = default;
};

/// One connection to the X server: which window is active, how long ago the last input was, whether the screens sleep.
/// Once it has broken it answers nothing and stays so. Main thread only.
class X11Display final : public QObject {
    Q_OBJECT

public:
    /// Connects to the display that the environment names; null when there is none.
    static std::unique_ptr<X11Display> open();
    ~X11Display() override;

    bool isBroken() const;
    /// The window with the keyboard; nothing without one or without a window manager that tells.
    std::optional<X11Window> activeWindow();
    /// What `userState` gives: unknown idle time where the server does not count it.
    struct UserState {
        std::optional<std::chrono::milliseconds> sinceLastInput;
        bool screensSleep = false;
    };
    UserState userState();

Q_SIGNALS:
    /// Another window may be the active one now. However many changes arrived at once, it comes once.
    void activeWindowChanged();
    /// The server has gone.
    void lost();

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const;
    };
    using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;
    enum Atom {
        activeWindowAtom,
        windowTypeAtom,
        processAtom,
        nameAtom,
        ordinaryAtom, // the types from here on, the ordinary ones first
        dialogAtom,
        utilityAtom,
        toolbarAtom,
        desktopAtom,
        dockAtom,
        notificationAtom,
        splashAtom,
        menuAtom,
        dropdownMenuAtom,
        popupMenuAtom,
        tooltipAtom,
        comboAtom,
        dragAtom,
        atomCount
    };

    X11Display(Connection connection, quint32 root);
    void receive();
    void noteQueuedEvents();
    void note(const void* event);

    Connection m_connection;
    quint32 m_root;
    std::array<quint32, atomCount> m_atoms = {};
    bool m_countsIdleTime = false;
    bool m_knowsScreenPower = false;
    bool m_activeWindowChanged = false;
    bool m_isReceiptDue = false;
    QSocketNotifier m_notifier;
};

} // namespace Platform
