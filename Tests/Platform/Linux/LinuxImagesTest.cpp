#include "Platform/Linux/LinuxImages.h"

#include "Platform/ImagesContract.h"
#include "Support/Files.h"

#include <QDir>
#include <QTemporaryDir>
#include <QWindow>

using namespace Qt::StringLiterals;

class LinuxImagesTest : public ImagesContract {
    Q_OBJECT

    class Folder : public Computer {
    public:
        Kelvane::Images& images() override { return m_images; }
        QString makeBundle(const QImage& icon) override {
            const QString path = makePlainBundle();
            const bool isSaved =
                icon.save(path + u"/Contents/Resources/Icon.png"_s) &&
                Files::put(path + u"/Contents/Info.plist"_s, "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>"
                                                             "<key>CFBundleIconFile</key><string>Icon</string>"
                                                             "</dict></plist>");
            Q_ASSERT(isSaved);
            return path;
        }
        QString makePlainBundle() override {
            const QString path = m_folder.filePath(u"%1.app"_s.arg(++m_bundles));
            QDir().mkpath(path + u"/Contents/Resources"_s);
            return path;
        }

    private:
        QTemporaryDir m_folder;
        Platform::LinuxImages m_images;
        int m_bundles = 0;
    };
    std::unique_ptr<Computer> makeComputer() override { return std::make_unique<Folder>(); }

private Q_SLOTS:
    void whatIsNotThereHasNone() {
        const auto computer = makeComputer();
        QVERIFY(!computer->images().applicationIcon(u"/nowhere/Gone.app"_s, 32));
    }

    void aWindowIsItsContentAlone() {
        const auto computer = makeComputer();
        QWindow window;
        QVERIFY(!computer->images().windowPicture(window, QImage(8, 8, QImage::Format_RGB32), Qt::gray));
    }
};

QTEST_MAIN(LinuxImagesTest)
#include "LinuxImagesTest.moc"
