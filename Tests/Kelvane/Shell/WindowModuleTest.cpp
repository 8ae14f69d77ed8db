#include "Kelvane/Shell/WindowModule.h"

#include "Support/FakeDesktop.h"
#include "Support/FakeImages.h"
#include "Support/Files.h"
#include "Support/ModelWorld.h"

#include <QApplication>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;

/// The window in a library of its own.
class WindowModuleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theWindowComesFromItsLibrary() {
        const std::unique_ptr<ApplicationWindow> window = load(u"" WINDOW_MODULE ""_s);
        QVERIFY(window != nullptr);
        QVERIFY(!window->isVisible());
        window->show();
        QVERIFY(window->isVisible());
        // The renderer is chosen for this process alone: what it starts finds the environment that the user made.
        QVERIFY(!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"));
    }

    void whatIsNotTheWindowIsRefused_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("reason");
        QTest::newRow("there is none") << m_folder.filePath(u"none.so"_s) << u"none"_s;
        QTest::newRow("it is no library") << m_folder.filePath(u"garbage.so"_s) << u"garbage"_s;
        QTest::newRow("it is another library") << u"" OTHER_LIBRARY ""_s << u"holds no window"_s;
        QTest::newRow("it is of another version") << u"" OTHER_VERSION ""_s << u"is of version 0.0.1"_s;
    }
    void whatIsNotTheWindowIsRefused() {
        QFETCH(QString, path);
        QFETCH(QString, reason);
        QVERIFY(Files::put(m_folder.filePath(u"garbage.so"_s), "no library"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(reason)));
        QVERIFY(load(path) == nullptr);
    }

private:
    std::unique_ptr<ApplicationWindow> load(const QString& path) {
        return WindowModule::load(path, m_model, m_desktop, m_images);
    }

    QTemporaryDir m_folder;
    ModelWorld m_world = ModelWorld(QStringList());
    AppModel m_model = AppModel(m_world.services(), m_world.paths(), nullptr, nullptr);
    Fakes::Desktop m_desktop;
    Fakes::Images m_images;
};

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QSG_RHI_BACKEND");
    qunsetenv("QT_QUICK_BACKEND");
    const QApplication application(argc, argv);
    WindowModuleTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "WindowModuleTest.moc"
