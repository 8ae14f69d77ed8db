#pragma once

#include "DockCore/Ports/Preferences.h"

#include <QTest>

#include <memory>

/// What every adapter of the Preferences port keeps to. A test class derives from it, says how a domain is made, and
/// adds what is particular to its system.
class PreferencesContract : public QObject {
    Q_OBJECT

protected:
    using PropertyList = DockCore::PropertyList;

    /// A domain of its own and the adapter in front of it.
    class Domain {
    public:
        virtual ~Domain() = default;
        virtual DockCore::Preferences& preferences() = 0;
        /// What is stored behind the adapter's back, and changing it there.
        virtual PropertyList::Dictionary stored() = 0;
        virtual void store(const PropertyList::Dictionary& values) = 0;
        /// Calls `synchronize` while the computer refuses to save.
        virtual bool synchronizeRefused() = 0;
    };
    virtual std::unique_ptr<Domain> makeDomain() = 0;

    static PropertyList text(const char* value) { return {QString::fromUtf8(value)}; }
    static QString key(const char* name) { return QString::fromUtf8(name); }

private Q_SLOTS:
    void aKeyThatIsNotStoredReadsAsNothing() {
        const auto domain = makeDomain();
        QVERIFY(domain->preferences().synchronize());
        QCOMPARE(domain->preferences().copyValue(key("persistent-apps")), std::nullopt);
    }

    void everyTypeOfValueComesBackAsItWasSet_data() {
        QTest::addColumn<PropertyList>("value");
        QTest::newRow("true") << PropertyList{true};
        QTest::newRow("false") << PropertyList{false};
        QTest::newRow("zero, which is not false") << PropertyList{qint64(0)};
        QTest::newRow("a negative integer") << PropertyList{qint64(-7)};
        QTest::newRow("an integer over 32 bits") << PropertyList{qint64(1) << 40};
        QTest::newRow("the smallest integer") << PropertyList{std::numeric_limits<qint64>::min()};
        QTest::newRow("a real") << PropertyList{0.1};
        QTest::newRow("a whole real, which is not an integer") << PropertyList{2.0};
        QTest::newRow("an empty text") << text("");
        QTest::newRow("a text in another script") << text("Кельване 😀");
        QTest::newRow("data") << PropertyList{QByteArray("\0\1\xff", 3)};
        QTest::newRow("a date") << PropertyList{PropertyList::Date{700000000}};
        QTest::newRow("an empty list") << PropertyList{PropertyList::Array()};
        QTest::newRow("an empty dictionary") << PropertyList{PropertyList::Dictionary()};
        QTest::newRow("a tile") << PropertyList{PropertyList::Dictionary{
            {key("GUID"), {qint64(3000000000)}},
            {key("tile-data"),
             {PropertyList::Dictionary{{key("file-label"), text("Safari")}, {key("is-beta"), {false}}}}},
            {key("other"), {PropertyList::Array{text("a"), {qint64(1)}, {PropertyList::Array()}}}}}};
    }
    void everyTypeOfValueComesBackAsItWasSet() {
        QFETCH(PropertyList, value);
        const auto domain = makeDomain();
        domain->preferences().setValue(key("k"), value);
        QVERIFY(domain->preferences().synchronize());
        QVERIFY(domain->preferences().copyValue(key("k")) == value);
        QVERIFY(domain->stored().value(key("k")) == value);
    }

    void aValueThatWasSetIsReadBeforeItIsSaved() {
        const auto domain = makeDomain();
        domain->store({{key("k"), text("stored")}});
        QVERIFY(domain->preferences().synchronize());
        domain->preferences().setValue(key("k"), text("set"));
        QVERIFY(domain->preferences().copyValue(key("k")) == text("set"));
        domain->preferences().setValue(key("k"), std::nullopt);
        QCOMPARE(domain->preferences().copyValue(key("k")), std::nullopt);
    }

    void nothingIsSavedBeforeSynchronize() {
        const auto domain = makeDomain();
        domain->store({{key("k"), text("stored")}});
        QVERIFY(domain->preferences().synchronize());
        domain->preferences().setValue(key("k"), text("set"));
        QVERIFY(domain->stored().value(key("k")) == text("stored"));
    }

    void theLastOfTwoValuesCounts() {
        const auto domain = makeDomain();
        domain->preferences().setValue(key("k"), text("first"));
        domain->preferences().setValue(key("k"), text("second"));
        QVERIFY(domain->preferences().synchronize());
        QVERIFY(domain->stored().value(key("k")) == text("second"));
    }

    void settingNothingRemovesTheKey() {
        const auto domain = makeDomain();
        domain->store({{key("show-recents"), {true}}, {key("tilesize"), {qint64(48)}}});
        domain->preferences().setValue(key("show-recents"), std::nullopt);
        QVERIFY(domain->preferences().synchronize());
        QCOMPARE(domain->preferences().copyValue(key("show-recents")), std::nullopt);
        QCOMPARE(domain->stored().keys(), QStringList{key("tilesize")});
    }

    void removingWhatIsNotThereIsNoFailure() {
        const auto domain = makeDomain();
        domain->preferences().setValue(key("show-recents"), std::nullopt);
        QVERIFY(domain->preferences().synchronize());
        QVERIFY(domain->stored().isEmpty());
    }

    void keysThatWereNotSetSurviveAWrite() {
        const auto domain = makeDomain();
        const PropertyList odd = {PropertyList::Array{{0.25}, text("ключ"), {PropertyList::Dictionary()}}};
        domain->store({{key("tilesize"), {48.0}}, {key("odd"), odd}, {key("persistent-apps"), text("old")}});
        domain->preferences().setValue(key("persistent-apps"), text("new"));
        QVERIFY(domain->preferences().synchronize());
        const PropertyList::Dictionary expected = {
            {key("tilesize"), {48.0}}, {key("odd"), odd}, {key("persistent-apps"), text("new")}};
        QVERIFY(domain->stored() == expected);
    }

    void aChangeThatAnotherMadeIsSeenAfterSynchronize() {
        const auto domain = makeDomain();
        domain->store({{key("k"), text("one")}});
        QVERIFY(domain->preferences().synchronize());
        QVERIFY(domain->preferences().copyValue(key("k")) == text("one"));
        domain->store({{key("k"), text("two")}});
        QVERIFY(domain->preferences().synchronize());
        QVERIFY(domain->preferences().copyValue(key("k")) == text("two"));
        domain->store({});
        QVERIFY(domain->preferences().synchronize());
        QCOMPARE(domain->preferences().copyValue(key("k")), std::nullopt);
    }

    void aRefusedSaveIsReportedAndChangesNothing() {
        const auto domain = makeDomain();
        domain->store({{key("k"), text("stored")}});
        domain->preferences().setValue(key("k"), text("set"));
        QVERIFY(!domain->synchronizeRefused());
        QVERIFY(domain->stored().value(key("k")) == text("stored"));
    }

    void savingWorksAgainAfterARefusal() {
        const auto domain = makeDomain();
        domain->preferences().setValue(key("k"), text("refused"));
        QVERIFY(!domain->synchronizeRefused());
        domain->preferences().setValue(key("k"), text("set"));
        QVERIFY(domain->preferences().synchronize());
        QVERIFY(domain->stored().value(key("k")) == text("set"));
    }
};
