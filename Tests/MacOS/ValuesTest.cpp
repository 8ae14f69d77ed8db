#include "Platform/MacOS/Values.h"

#include "MacOS/FakeCoreFoundation/FakeCoreFoundation.h"
#include "MacOS/FakeCoreFoundation/Object.h"
#include "Platform/MacOS/InputIdleTime.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using DockCore::PropertyList;

/// What crosses the border between our values and CoreFoundation's, and who owns it then.
class MacOSValuesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { FakeCoreFoundation::reset(); }
    void cleanup() { QCOMPARE(FakeCoreFoundation::liveObjects(), 0); }

    void anOwnerReleasesOnce();
    void anOwnerThatIsMovedHandsOver();
    void anOwnerOfNothingReleasesNothing();
    void aStringKeepsItsCharacters_data();
    void aStringKeepsItsCharacters();
    void whatIsNoPropertyListReadsAsNothing();
    void whatNestsTooDeepIsNotHandedOver();
    void aDateKeepsItsMilliseconds();
    void nullIsNoDate();
    void theIdleTimeIsWhatTheSystemSays_data();
    void theIdleTimeIsWhatTheSystemSays();
};

void MacOSValuesTest::anOwnerReleasesOnce() {
    {
        const Platform::Owner<CFPropertyListRef> owner = FakeCoreFoundation::makeObject({u"text"_s});
        QVERIFY(owner);
        QCOMPARE(FakeCoreFoundation::liveObjects(), 1);
    }
    QCOMPARE(FakeCoreFoundation::liveObjects(), 0);
}

void MacOSValuesTest::anOwnerThatIsMovedHandsOver() {
    Platform::Owner<CFPropertyListRef> first = FakeCoreFoundation::makeObject({u"first"_s});
    Platform::Owner<CFPropertyListRef> second = FakeCoreFoundation::makeObject({u"second"_s});
    const CFPropertyListRef held = first.borrow();
    second = std::move(first);
    QCOMPARE(second.borrow(), held);
    const Platform::Owner<CFPropertyListRef> third = std::move(second);
    QVERIFY(!second);
    QCOMPARE(third.borrow(), held);
}

void MacOSValuesTest::anOwnerOfNothingReleasesNothing() {
    const Platform::Owner<CFPropertyListRef> empty;
    QVERIFY(!empty);
    QCOMPARE(empty.borrow(), nullptr);
}

void MacOSValuesTest::aStringKeepsItsCharacters_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << u""_s;
    QTest::newRow("plain") << u"persistent-apps"_s;
    QTest::newRow("outside the first plane") << u"ä€𝄞"_s;
    QTest::newRow("with a zero inside") << QString(u"a\0b"_s);
}

void MacOSValuesTest::aStringKeepsItsCharacters() {
    QFETCH(QString, text);
    const Platform::Owner string = Platform::makeString(text);
    QVERIFY(FakeCoreFoundation::valueOf(FakeCoreFoundation::object(string.borrow())) == PropertyList{text});
}

void MacOSValuesTest::whatIsNoPropertyListReadsAsNothing() {
    const Platform::Owner foreign = FakeCoreFoundation::makeForeignObject();
    QVERIFY(!Platform::propertyList(foreign.borrow()));
}

void MacOSValuesTest::whatNestsTooDeepIsNotHandedOver() {
    PropertyList value{u"core"_s};
    for (int level = 0; level < 600; ++level) {
        value = {PropertyList::Array{value}};
    }
    QVERIFY(!Platform::makePropertyList(value));
}

void MacOSValuesTest::aDateKeepsItsMilliseconds() {
    const Platform::Owner date = FakeCoreFoundation::makeObject({PropertyList::Date{.seconds = 0.125}});
    QCOMPARE(Platform::date(date.borrow()), QDateTime(QDate(2001, 1, 1), QTime(0, 0, 0, 125), Qt::UTC));
}

void MacOSValuesTest::nullIsNoDate() {
    QVERIFY(!Platform::date(nullptr));
    QVERIFY(!Platform::dates(nullptr));
}

void MacOSValuesTest::theIdleTimeIsWhatTheSystemSays_data() {
    using Limits = std::numeric_limits<double>;
    QTest::addColumn<double>("seconds");
    QTest::addColumn<bool>("isKnown");
    QTest::newRow("right now") << 0.0 << true;
    QTest::newRow("a moment ago") << 19.75 << true;
    QTest::newRow("two days ago") << 172800.0 << true;
    QTest::newRow("the largest time the system counts, right after the session starts") << 18446744073.709553 << false;
    QTest::newRow("no number") << Limits::quiet_NaN() << false;
    QTest::newRow("for ever") << Limits::infinity() << false;
    QTest::newRow("in the future") << -1.0 << false;
}

void MacOSValuesTest::theIdleTimeIsWhatTheSystemSays() {
    QFETCH(double, seconds);
    QFETCH(bool, isKnown);
    FakeCoreFoundation::computer().secondsSinceLastInput = seconds;
    const auto idle = Platform::inputIdleTime();
    QCOMPARE(idle.has_value(), isKnown);
    if (isKnown) {
        QCOMPARE(idle->count(), seconds);
    }
}

QTEST_GUILESS_MAIN(MacOSValuesTest)
#include "ValuesTest.moc"
