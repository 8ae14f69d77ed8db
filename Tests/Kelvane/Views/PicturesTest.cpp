#include "WindowTest.h"

#include "Kelvane/Views/ScreenImages.h"
#include "Support/Picture.h"

#include <QDir>
#include <QFont>
#include <QLocale>
#include <QPainter>
#include <QPalette>
#include <QTemporaryDir>

using namespace DockCore;
using namespace Kelvane;
using namespace Fakes;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A desktop whose appearance the window follows.
class ColouredDesktop : public Fakes::Desktop {
public:
    void setAppearance(Appearance wanted) override {
        Fakes::Desktop::setAppearance(wanted);
        const bool dark = wanted == Appearance::dark;
        QPalette palette(dark ? Qt::black : Qt::white);
        palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::black);
        QGuiApplication::setPalette(palette);
        QFont font(u"Inter"_s);
        font.setPixelSize(13);
        QGuiApplication::setFont(font);
    }
};

} // namespace

/// Every pane and every step of the first run against the pictures beside this file, so that no change of their looks
/// goes unnoticed. Pictures that changed on purpose are kept with `KELVANE_KEEP_PICTURES=1 PicturesTest`.
class PicturesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void picturesAreAsKept_data();
    void picturesAreAsKept();
    void aChangeIsNoticed_data();
    void aChangeIsNoticed();

private:
    static QString kept(const QString& name) { return QStringLiteral(KELVANE_PICTURES) + u'/' + name + u".png"_s; }

    /// Where the folder of the data is named, which is another one each time.
    static constexpr QRect folderName{122, 202, 130, 10};

    /// The picture that was drawn just now, as it is kept.
    QImage drawn(const QString& name) const {
        QImage image = Picture::small(QImage(m_folder.filePath(name + u".png"_s)));
        if (name.startsWith(u"settings"))
            QPainter(&image).fillRect(folderName, Qt::gray);
        return image;
    }

    QTemporaryDir m_folder;
    QStringList m_names;
};

void PicturesTest::initTestCase() {
    WindowWorld mac;
    pinActive(*mac.model, {u"Mail"_s, u"Calendar"_s});
    Profile profile = mac.model->activeProfile();
    profile.adaptiveSlots = 6;
    profile.excluded = ModelWorld::bundleIDs({u"Chess"_s});
    mac.model->update(profile);
    QVERIFY(refreshAndWait(*mac.model));
    mac.model->applyActive(AppModel::Notify::failuresOnly);
    QVERIFY(mac.waitForChange());
    mac.world.clock.advance(26h);
    mac.world.setDock({u"Maps"_s, u"Mail"_s, u"Books"_s, u"Calendar"_s, u"Terminal"_s, u"Music"_s});
    QVERIFY(refreshAndWait(*mac.model));

    ColouredDesktop desktop;
    mac.window.emplace(*mac.model, desktop, mac.images);
    ScreenImages images(*mac.model, desktop, *mac.window, m_folder.path());
    QSignalSpy finished(&images, &ScreenImages::finished);
    images.start();
    QVERIFY(finished.wait(120000));
    m_names = QDir(m_folder.path()).entryList(QDir::Files).replaceInStrings(u".png"_s, QString());
    QStringList expected;
    for (const QString& appearance : {u"-dark"_s, u"-light"_s}) {
        for (const QString& screen : {u"onboarding-1"_s, u"onboarding-2"_s, u"onboarding-3"_s})
            expected += screen + appearance;
        for (const PaneInfo& pane : allPanes())
            expected += pane.name + appearance;
    }
    expected.sort();
    QCOMPARE(m_names, expected);
}

void PicturesTest::picturesAreAsKept_data() {
    QTest::addColumn<QString>("name");
    for (const QString& name : std::as_const(m_names))
        QTest::newRow(qPrintable(name)) << name;
}

void PicturesTest::picturesAreAsKept() {
    QFETCH(QString, name);
    const QImage now = drawn(name);
    if (qEnvironmentVariableIsSet("KELVANE_KEEP_PICTURES"))
        QVERIFY(now.save(kept(name)));
    const QList<QRect> changes = Picture::changes(QImage(kept(name)), now);
    if (!changes.isEmpty()) {
        const QString path = QDir::current().filePath(name + u"-changed.png"_s);
        now.save(path);
        QFAIL(qPrintable(u"%1 places changed, the first at %2, %3 of %4"_s.arg(changes.size())
                             .arg(changes.constFirst().x())
                             .arg(changes.constFirst().y())
                             .arg(path)));
    }
}

void PicturesTest::aChangeIsNoticed_data() {
    QTest::addColumn<QRect>("place");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("a tile's icon is gone") << QRect(128, 105, 26, 26) << QColor(0xEF, 0xEF, 0xF3);
    QTest::newRow("a mark has another colour") << QRect(148, 104, 9, 9) << QColor(0x3F, 0x57, 0xD6);
    QTest::newRow("a button is red") << QRect(400, 295, 60, 15) << QColor(0xC0, 0x2B, 0x36);
}

void PicturesTest::aChangeIsNoticed() {
    QFETCH(QRect, place);
    QFETCH(QColor, colour);
    const QImage before(kept(u"dock-light"_s));
    QImage after = before.convertToFormat(QImage::Format_RGB32);
    QPainter(&after).fillRect(place, colour);
    QVERIFY(Picture::changes(before, before).isEmpty());
    QVERIFY(!Picture::changes(before, after).isEmpty());
}

int main(int argc, char** argv) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QCoreApplication::setApplicationVersion(u"1.0.0"_s);
    return runWindowTest<PicturesTest>(argc, argv);
}
#include "PicturesTest.moc"
