#include "DockCore/ProfileStore.h"

#include "DockCore/Storage/JSONFile.h"
#include "DockCore/Storage/Paths.h"
#include "Support/ChildProcess.h"
#include "Support/FakeServices.h"
#include "Support/Files.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace {
void put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

const QStringList starterNames = {u"Everyday"_s, u"Work"_s, u"Coding"_s, u"Meeting"_s, u"Personal"_s};

QStringList names(const QList<Profile>& profiles) {
    QStringList names;
    for (const Profile& profile : profiles)
        names.append(profile.name);
    return names;
}

Profile profile(const QString& name) {
    return Profile::make(name, u"video"_s, {}, {}, 3, UsageWindow::week, false);
}
} // namespace

class ProfileStoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_world = std::make_unique<Fakes::World>(); }
    void cleanup() { m_world.reset(); }

    void theFirstStartWritesBothFiles() {
        m_world->install(u"com.apple.mail"_s, u"Mail"_s);
        const ProfileStore store = m_world->profileStore();
        QCOMPARE(names(store.profiles), starterNames);
        QCOMPARE(store.profiles[1].pinned, QStringList{u"com.apple.mail"_s});
        AppSettings expected;
        expected.activeProfileID = store.profiles.first().id;
        QCOMPARE(store.settings, expected);
        QCOMPARE(store.active(), store.profiles.first());

        const QJsonArray written = JSONFile::read(m_world->paths().profiles()).value_or(QJsonValue()).toArray();
        QCOMPARE(written.size(), 5);
        for (qsizetype i = 0; i < 5; ++i)
            QCOMPARE(Profile::fromJson(written[i]), store.profiles[i]);
        QCOMPARE(JSONFile::read(m_world->paths().settings()).value_or(QJsonValue()),
                 QJsonValue(QJsonObject{{u"onboarded"_s, false},
                                        {u"activeProfileID"_s, uuidString(store.profiles.first().id)},
                                        {u"autoUpdate"_s, 86400},
                                        {u"trackingEnabled"_s, true},
                                        {u"autoPaused"_s, false}}));
    }

    void theNextStartReadsThemAndWritesNothing() {
        const ProfileStore first = m_world->profileStore();
        const QByteArray profiles = Files::contentOf(m_world->paths().profiles());
        // A file that were written again would lose this.
        put(m_world->paths().profiles(), profiles + "\n\n");
        put(m_world->paths().settings(), Files::contentOf(m_world->paths().settings()) + "\n\n");
        const ProfileStore second = m_world->profileStore();
        QCOMPARE(second.profiles, first.profiles);
        QCOMPARE(second.settings, first.settings);
        QVERIFY(Files::contentOf(m_world->paths().profiles()).endsWith("\n\n"));
        QVERIFY(Files::contentOf(m_world->paths().settings()).endsWith("\n\n"));
    }

    void unreadableSettingsAreReplacedByTheDefaults_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("value");
        QTest::newRow("without \"autoPaused\"") << u"autoPaused"_s << QJsonValue(QJsonValue::Undefined);
        QTest::newRow("with an \"autoUpdate\" of 600") << u"autoUpdate"_s << QJsonValue(600);
        QTest::newRow("with null for \"onboarded\"") << u"onboarded"_s << QJsonValue(QJsonValue::Null);
        QTest::newRow("with a number for \"trackingEnabled\"") << u"trackingEnabled"_s << QJsonValue(1);
        QTest::newRow("with a fraction in \"lastApplied\"")
            << u"lastApplied"_s << QJsonValue(u"2026-03-01T08:00:00.5Z"_s);
    }
    void unreadableSettingsAreReplacedByTheDefaults() {
        QFETCH(const QString, key);
        QFETCH(const QJsonValue, value);
        AppSettings settings;
        QList<Profile> profiles;
        {
            ProfileStore store = m_world->profileStore();
            store.settings.onboarded = true;
            store.settings.trackingEnabled = false;
            store.settings.activeProfileID = store.profiles[2].id;
            store.saveSettings();
            settings = store.settings;
            profiles = store.profiles;
        }
        QCOMPARE(m_world->profileStore().settings, settings);
        QJsonObject json = settings.toJson().toObject();
        json.insert(key, value);
        put(m_world->paths().settings(), QJsonDocument(json).toJson());
        const ProfileStore store = m_world->profileStore();
        AppSettings expected;
        expected.activeProfileID = profiles.first().id;
        QCOMPARE(store.settings, expected);
        QCOMPARE(store.profiles, profiles);
        QCOMPARE(AppSettings::fromJson(JSONFile::read(m_world->paths().settings()).value_or(QJsonValue())), expected);
    }

    void unreadableProfilesAreReplacedByTheStarters_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("an empty list") << QByteArray("[]");
        QTest::newRow("an empty file") << QByteArray();
        QTest::newRow("broken JSON") << QByteArray("[{");
        QTest::newRow("an object") << QByteArray("{}");
        QTest::newRow("a list of null") << QByteArray("[null]");
        QJsonObject good = profile(u"Mine"_s).toJson().toObject();
        QJsonObject bad = good;
        bad.remove(u"pinned"_s);
        QTest::newRow("one good profile and one without \"pinned\"") << QJsonDocument(QJsonArray{good, bad}).toJson();
        bad = good;
        bad.insert(u"window"_s, 8);
        QTest::newRow("one good profile and one with a window of 8") << QJsonDocument(QJsonArray{good, bad}).toJson();
    }
    void unreadableProfilesAreReplacedByTheStarters() {
        QFETCH(const QByteArray, bytes);
        put(m_world->paths().profiles(), bytes);
        const ProfileStore store = m_world->profileStore();
        QCOMPARE(names(store.profiles), starterNames);
        QCOMPARE(JSONFile::read(m_world->paths().profiles()).value_or(QJsonValue()).toArray().size(), 5);
        QCOMPARE(store.settings.activeProfileID, store.profiles.first().id);
    }

    void keepsTheUsersOwnProfilesInTheirOrder() {
        const QList<Profile> mine = {profile(u"日本"_s), profile(u"Same"_s), profile(u"Same"_s)};
        {
            ProfileStore store = m_world->profileStore();
            store.profiles = mine;
            store.settings.activeProfileID = mine[2].id;
            store.saveProfiles();
            store.saveSettings();
        }
        const ProfileStore store = m_world->profileStore();
        QCOMPARE(store.profiles, mine);
        QCOMPARE(store.active(), mine[2]);
    }

    void aDeletedActiveProfileIsRepairedAtTheNextStart() {
        const QUuid gone = QUuid::createUuid();
        {
            ProfileStore store = m_world->profileStore();
            store.settings.activeProfileID = gone;
            QCOMPARE(store.active(), store.profiles.first());
            QCOMPARE(store.settings.activeProfileID, gone);
            store.settings.onboarded = true;
            store.saveSettings();
        }
        const ProfileStore store = m_world->profileStore();
        QCOMPARE(store.settings.activeProfileID, store.profiles.first().id);
        QVERIFY(store.settings.onboarded);
        QCOMPARE(AppSettings::fromJson(JSONFile::read(m_world->paths().settings()).value_or(QJsonValue())),
                 store.settings);
    }

    void withoutAnActiveProfileTheFirstCounts() {
        ProfileStore store = m_world->profileStore();
        store.settings.activeProfileID.reset();
        QCOMPARE(store.active(), store.profiles.first());
        store.settings.activeProfileID = store.profiles[3].id;
        QCOMPARE(store.active(), store.profiles[3]);
    }

    void withoutProfilesThereIsNoActiveOne() {
        if (ChildProcess::isChild()) {
            ProfileStore store = m_world->profileStore();
            store.profiles.clear();
            store.active();
            return;
        }
        const auto outcome = ChildProcess::run();
        QVERIFY2(outcome.crashed, qPrintable(outcome.output));
        QVERIFY(outcome.output.contains(u"There is no profile."));
    }

    void aFolderThatCannotBeWrittenLeavesTheMemory() {
        const QString file = m_world->directory.filePath(u"file"_s);
        put(file, "x");
        qputenv("KELVANE_HOME", (file + u"/below"_s).toUtf8());
        ProfileStore store = m_world->profileStore();
        qunsetenv("KELVANE_HOME");
        QCOMPARE(names(store.profiles), starterNames);
        QCOMPARE(store.settings.activeProfileID, store.profiles.first().id);
        store.settings.onboarded = true;
        store.saveSettings();
        store.saveProfiles();
        QVERIFY(store.settings.onboarded);
        QCOMPARE(Files::contentOf(file), "x");
    }

private:
    std::unique_ptr<Fakes::World> m_world;
};

QTEST_GUILESS_MAIN(ProfileStoreTest)
#include "ProfileStoreTest.moc"
