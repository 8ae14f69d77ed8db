#include "WindowTest.h"

#include <QPalette>

using namespace Kelvane;
using namespace Fakes;

/// The pictures that the main window gives of itself.
class MainWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutAWindowThereIsNoPicture() {
        WindowWorld mac;
        mac.images.titleBar = titleBar;
        mac.window.emplace(*mac.model, mac.desktop, mac.images);
        QVERIFY(!mac.window->grab());
    }

    void theTitleBarIsInThePictureWhereTheSystemDrawsIt_data() {
        QTest::addColumn<QColor>("text");
        QTest::addColumn<QColor>("background");
        QTest::newRow("light") << QColor(Qt::black) << QColor::fromRgbF(0.97F, 0.97F, 0.97F);
        QTest::newRow("dark") << QColor(Qt::white) << QColor::fromRgbF(0.12F, 0.12F, 0.12F);
    }
    void theTitleBarIsInThePictureWhereTheSystemDrawsIt() {
        QFETCH(QColor, text);
        QFETCH(QColor, background);
        QPalette palette;
        palette.setColor(QPalette::WindowText, text);
        palette.setColor(QPalette::Window, text == Qt::black ? Qt::white : Qt::black);
        QGuiApplication::setPalette(palette);
        WindowWorld mac;
        mac.open(Pane::settings);

        const std::optional<QImage> content = mac.window->grab();
        QVERIFY(content);
        QCOMPARE(content->size(), mac.quick()->size() * mac.quick()->devicePixelRatio());

        mac.images.titleBar = titleBar;
        const std::optional<QImage> whole = mac.window->grab();
        QVERIFY(whole);
        QCOMPARE(whole->size(), content->size() + QSize(0, titleBar));
        QCOMPARE(whole->pixelColor(0, 0).rgb(), background.rgb());
        QCOMPARE(whole->pixelColor(whole->width() - 1, titleBar - 1).rgb(), background.rgb());
        QCOMPARE(whole->copy(QRect(QPoint(0, titleBar), content->size())), *content);
    }

private:
    static constexpr int titleBar = 28;
};

int main(int argc, char** argv) {
    return runWindowTest<MainWindowTest>(argc, argv);
}
#include "MainWindowTest.moc"
