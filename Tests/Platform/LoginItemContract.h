#pragma once

#include "Kelvane/Ports/LoginItem.h"

#include <QTest>

#include <memory>

/// What every adapter of the LoginItem port keeps to. A test class derives from it, says how a user is made, and adds
/// what is particular to its system.
class LoginItemContract : public QObject {
    Q_OBJECT

protected:
    /// A user who has no login item yet.
    class User {
    public:
        virtual ~User() = default;
        virtual Kelvane::LoginItem& loginItem() = 0;
        /// Turns it off as the user would in the system's own settings.
        virtual void turnOffElsewhere() = 0;
        /// From now on the system refuses.
        virtual void refuse() = 0;
    };
    virtual std::unique_ptr<User> makeUser() = 0;

private Q_SLOTS:
    void itIsOffAtFirst() {
        const auto user = makeUser();
        QVERIFY(!user->loginItem().isEnabled());
    }

    void itIsTurnedOnAndOff() {
        const auto user = makeUser();
        QCOMPARE(user->loginItem().setEnabled(true), std::nullopt);
        QVERIFY(user->loginItem().isEnabled());
        QCOMPARE(user->loginItem().setEnabled(false), std::nullopt);
        QVERIFY(!user->loginItem().isEnabled());
    }

    void turningOnWhatIsOnChangesNothing() {
        const auto user = makeUser();
        user->loginItem().setEnabled(true);
        QCOMPARE(user->loginItem().setEnabled(true), std::nullopt);
        QVERIFY(user->loginItem().isEnabled());
    }

    void turningOffWhatIsOffIsNoFailure() {
        const auto user = makeUser();
        QCOMPARE(user->loginItem().setEnabled(false), std::nullopt);
        QVERIFY(!user->loginItem().isEnabled());
    }

    void whatTheUserTurnsOffElsewhereIsOff() {
        const auto user = makeUser();
        user->loginItem().setEnabled(true);
        user->turnOffElsewhere();
        QVERIFY(!user->loginItem().isEnabled());
        QCOMPARE(user->loginItem().setEnabled(true), std::nullopt);
        QVERIFY(user->loginItem().isEnabled());
    }

    void aRefusalGivesItsReasonAndChangesNothing() {
        const auto user = makeUser();
        user->refuse();
        const std::optional<QString> reason = user->loginItem().setEnabled(true);
        QVERIFY(reason);
        QVERIFY(!reason->isEmpty());
        QVERIFY(!user->loginItem().isEnabled());
    }
};
