#include "Platform/Linux/LinuxLoginItem.h"

#include "Support/Files.h"

#include "Platform/LoginItemContract.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

class LinuxLoginItemTest : public LoginItemContract {
    Q_OBJECT

    class Desktop : public User {
    public:
        Desktop() { qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_config.path())); }
        Kelvane::LoginItem& loginItem() override { return m_loginItem; }
        void turnOffElsewhere() override {
            // As settings tools do, who keep the file for the next time.
            write(read() + "Hidden=true\n");
        }
        void refuse() override {
            // A file where the folder should be holds for root as well.
            QFile file(m_config.filePath(u"autostart"_s));
            const bool isOpen = file.open(QIODevice::WriteOnly);
            Q_ASSERT(isOpen);
        }

        QString path() const { return m_config.filePath(u"autostart/org.kelvane.Kelvane.desktop"_s); }
        QByteArray read() const { return Files::contentOf(path()); }
        void write(const QByteArray& content) const {
            QDir().mkpath(m_config.filePath(u"autostart"_s));
            QFile file(path());
            const bool isOpen = file.open(QIODevice::WriteOnly);
            Q_ASSERT(isOpen);
            file.write(content);
        }

    private:
        QTemporaryDir m_config;
        Platform::LinuxLoginItem m_loginItem;
    };
    std::unique_ptr<User> makeUser() override { return std::make_unique<Desktop>(); }

private Q_SLOTS:
    void theEntryLiesInTheAutostartFolderAndStartsThisProgram() {
        Desktop desktop;
        QCOMPARE(desktop.loginItem().setEnabled(true), std::nullopt);
        const QList<QByteArray> lines = desktop.read().split('\n');
        QCOMPARE(lines.first(), QByteArray("[Desktop Entry]"));
        QVERIFY(lines.contains("Type=Application"));
        QVERIFY(lines.contains("Exec=\"" + QFile::encodeName(QCoreApplication::applicationFilePath()) + "\""));
    }

    void turningItOffLeavesNoFile() {
        Desktop desktop;
        desktop.loginItem().setEnabled(true);
        desktop.loginItem().setEnabled(false);
        QVERIFY(!QFile::exists(desktop.path()));
    }

    void aWordOfTheDesktopTurnsItOff_data() {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<bool>("isEnabled");
        QTest::newRow("nothing but the entry") << QByteArray() << true;
        QTest::newRow("hidden") << QByteArray("Hidden=true") << false;
        QTest::newRow("not hidden") << QByteArray("Hidden=false") << true;
        QTest::newRow("disabled by GNOME") << QByteArray("X-GNOME-Autostart-enabled=false") << false;
        QTest::newRow("enabled by GNOME") << QByteArray("X-GNOME-Autostart-enabled=true") << true;
    }
    void aWordOfTheDesktopTurnsItOff() {
        QFETCH(QByteArray, line);
        QFETCH(bool, isEnabled);
        Desktop desktop;
        desktop.write("[Desktop Entry]\nType=Application\nName=Kelvane\nExec=kelvane\n" + line + "\n");
        QCOMPARE(desktop.loginItem().isEnabled(), isEnabled);
    }
};

QTEST_GUILESS_MAIN(LinuxLoginItemTest)
#include "LinuxLoginItemTest.moc"
