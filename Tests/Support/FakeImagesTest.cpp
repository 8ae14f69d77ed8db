#include "Support/FakeImages.h"

#include "Platform/ImagesContract.h"

using namespace Qt::StringLiterals;

class FakeImagesTest : public ImagesContract {
    Q_OBJECT

    class FakeComputer : public Computer {
    public:
        Kelvane::Images& images() override { return m_images; }
        QString makeBundle(const QImage& icon) override {
            const QString path = makePlainBundle();
            m_images.icons.insert(path, icon);
            return path;
        }
        QString makePlainBundle() override { return u"/Applications/%1.app"_s.arg(++m_bundles); }

    private:
        Fakes::Images m_images;
        int m_bundles = 0;
    };
    std::unique_ptr<Computer> makeComputer() override { return std::make_unique<FakeComputer>(); }
};

QTEST_GUILESS_MAIN(FakeImagesTest)
#include "FakeImagesTest.moc"
