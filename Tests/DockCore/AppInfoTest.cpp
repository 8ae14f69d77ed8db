#include "DockCore/AppInfo.h"

#include "Support/FakeServices.h"
#include "Support/Strictness.h"
#include "Support/ValueTraits.h"

#include <QJsonObject>
#include <QTest>

using namespace DockCore;
using namespace Qt::StringLiterals;

static_assert(isValue<AppInfo>);

class AppInfoTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsABundle_data() {
        QTest::addColumn<QString>("displayName");
        QTest::addColumn<QString>("name");
        QTest::newRow("a name without an extension stays") << u"Mail"_s << u"Mail"_s;
        QTest::newRow("a trailing .app is dropped") << u"Mail.app"_s << u"Mail"_s;
        QTest::newRow("only one .app is dropped") << u"Mail.app.app"_s << u"Mail.app"_s;
        QTest::newRow("another case of .app stays") << u"Mail.APP"_s << u"Mail.APP"_s;
        QTest::newRow("a name in another script stays") << u"邮件"_s << u"邮件"_s;
        QTest::newRow("without a display name the file's name counts") << QString() << u"File"_s;
    }
    void readsABundle() {
        QFETCH(const QString, displayName);
        QFETCH(const QString, name);
        Fakes::World world;
        world.bundles.add(u"/Somewhere/File.app"_s, u"com.apple.mail"_s, displayName);
        QCOMPARE(AppInfo::fromBundle(u"/Somewhere/File.app"_s, world.bundles),
                 (AppInfo{u"com.apple.mail"_s, name, u"/Somewhere/File.app"_s}));
    }

    void givesNothingWithoutAnIdentifier() {
        Fakes::World world;
        world.bundles.add(u"/A.app"_s, std::nullopt, u"A"_s);
        world.bundles.add(u"/B.app"_s, u""_s, u"B"_s);
        QVERIFY(!AppInfo::fromBundle(u"/A.app"_s, world.bundles));
        QVERIFY(!AppInfo::fromBundle(u"/B.app"_s, world.bundles));
        QVERIFY(!AppInfo::fromBundle(u"/Missing.app"_s, world.bundles));
    }

    void fromJson_data() {
        Strictness::addRows(
            {{u"bundleID"_s, u"com.apple.mail"_s}, {u"name"_s, u"Mail"_s}, {u"path"_s, u"/Applications/Mail.app"_s}},
            {});
    }
    void fromJson() {
        QFETCH(const QJsonValue, json);
        QFETCH(const bool, reads);
        QCOMPARE(AppInfo::fromJson(json).has_value(), reads);
    }

    void readsBackWhatItWrote() {
        const AppInfo app = {u"com.apple.mail"_s, u"Mail"_s, u"/Applications/Mail.app"_s};
        QCOMPARE(AppInfo::fromJson(app.toJson()), app);
        QCOMPARE(app.toJson().toObject().keys(), (QStringList{u"bundleID"_s, u"name"_s, u"path"_s}));
    }

    void everyFieldCountsForEquality() {
        const AppInfo app = {u"a"_s, u"b"_s, u"c"_s};
        QCOMPARE(app, (AppInfo{u"a"_s, u"b"_s, u"c"_s}));
        QCOMPARE(qHash(app), qHash(AppInfo{u"a"_s, u"b"_s, u"c"_s}));
        for (const AppInfo& other :
             {AppInfo{u"x"_s, u"b"_s, u"c"_s}, AppInfo{u"a"_s, u"x"_s, u"c"_s}, AppInfo{u"a"_s, u"b"_s, u"x"_s}}) {
            QVERIFY(other != app);
            QVERIFY(qHash(other) != qHash(app));
        }
    }
};

QTEST_GUILESS_MAIN(AppInfoTest)
#include "AppInfoTest.moc"
