#include "Platform/Linux/LinuxMetadata.h"

#include "DockCore/Storage/PropertyList.h"
#include "Platform/MetadataContract.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <sys/xattr.h>

using namespace Qt::StringLiterals;
using DockCore::PropertyList;

class LinuxMetadataTest : public MetadataContract {
    Q_OBJECT

    static constexpr const char* usedDates = "user.com.apple.metadata:kMDItemUsedDates";
    static constexpr const char* lastUsedDate = "user.com.apple.metadata:kMDItemLastUsedDate";

    class RealComputer : public Computer {
    public:
        DockCore::Metadata& metadata() override { return m_metadata; }
        QString makeFile(const Item& item) override {
            const QString path = m_directory.filePath(u"Safari.app"_s);
            QDir().mkpath(path);
            if (item.usedDates) {
                PropertyList::Array dates;
                for (const QDateTime& date : *item.usedDates) {
                    dates.append(propertyList(date));
                }
                attach(path, usedDates, {dates});
            }
            if (item.lastUsedDate) {
                attach(path, lastUsedDate, propertyList(*item.lastUsedDate));
            }
            return path;
        }
        QString missingFile() override { return m_directory.filePath(u"missing"_s); }

        bool keepsAttributes() {
            return setxattr(QFile::encodeName(m_directory.path()).constData(), "user.kelvane", "", 0, 0) == 0;
        }
        static bool attach(const QString& path, const char* name, const QByteArray& bytes) {
            return setxattr(QFile::encodeName(path).constData(), name, bytes.constData(), size_t(bytes.size()), 0) == 0;
        }
        static bool attach(const QString& path, const char* name, const PropertyList& value) {
            return attach(path, name, value.serialize(PropertyList::Format::binary));
        }
        static PropertyList propertyList(const QDateTime& date) {
            return {PropertyList::Date{double(date.toMSecsSinceEpoch()) / 1000 - 978307200}};
        }

    private:
        QTemporaryDir m_directory;
        Platform::LinuxMetadata m_metadata;
    };
    std::unique_ptr<Computer> makeComputer() override { return computer(); }

    static std::unique_ptr<RealComputer> computer() {
        auto made = std::make_unique<RealComputer>();
        return made->keepsAttributes() ? std::move(made) : nullptr;
    }

private Q_SLOTS:
    void fractionsOfASecondAreKeptToTheMillisecond() {
        const auto computer = LinuxMetadataTest::computer();
        if (!computer) {
            QSKIP("The file system keeps no extended attributes.");
        }
        const QDateTime date = moment("2026-03-01T08:00:00.250Z");
        QVERIFY(computer->metadata().item(computer->makeFile({std::nullopt, date})) == Item({std::nullopt, date}));
    }

    void whatIsNotADateReadsAsAbsent_data() {
        const PropertyList date = {PropertyList::Date{700000000}};
        const PropertyList text = {u"2026-03-01"_s};
        const auto binary = [](const PropertyList& value) { return value.serialize(PropertyList::Format::binary); };
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing at all") << QByteArray();
        QTest::newRow("bytes that are no property list") << QByteArray("today");
        QTest::newRow("a truncated property list") << binary({PropertyList::Array{date}}).chopped(9);
        QTest::newRow("an XML property list")
            << PropertyList{PropertyList::Array{date}}.serialize(PropertyList::Format::xml);
        QTest::newRow("a text") << binary(text);
        QTest::newRow("a number") << binary({qint64(700000000)});
        QTest::newRow("a dictionary") << binary({PropertyList::Dictionary{{u"date"_s, date}}});
        QTest::newRow("a list with one element that is no date") << binary({PropertyList::Array{date, text, date}});
        QTest::newRow("a list of lists") << binary({PropertyList::Array{{PropertyList::Array{date}}}});
        QTest::newRow("a moment that is no number")
            << binary({PropertyList::Array{{PropertyList::Date{std::nan("")}}}});
        QTest::newRow("a moment beyond all calendars") << binary({PropertyList::Array{{PropertyList::Date{1e300}}}});
    }
    void whatIsNotADateReadsAsAbsent() {
        QFETCH(QByteArray, bytes);
        const auto computer = LinuxMetadataTest::computer();
        if (!computer) {
            QSKIP("The file system keeps no extended attributes.");
        }
        const QString path = computer->makeFile({});
        QVERIFY(RealComputer::attach(path, usedDates, bytes));
        QVERIFY(RealComputer::attach(path, lastUsedDate, bytes));
        QVERIFY(computer->metadata().item(path) == Item());
    }

    void oneAttributeThatIsBrokenDoesNotHideTheOther() {
        const auto computer = LinuxMetadataTest::computer();
        if (!computer) {
            QSKIP("The file system keeps no extended attributes.");
        }
        const QDateTime date = moment("2026-03-01T08:00:00Z");
        const QString path = computer->makeFile({std::nullopt, date});
        QVERIFY(RealComputer::attach(path, usedDates, QByteArray("broken")));
        QVERIFY(computer->metadata().item(path) == Item({std::nullopt, date}));
    }

    void aDateInPlaceOfTheListIsNoList() {
        const auto computer = LinuxMetadataTest::computer();
        if (!computer) {
            QSKIP("The file system keeps no extended attributes.");
        }
        const PropertyList date = {PropertyList::Date{700000000}};
        const QString path = computer->makeFile({});
        QVERIFY(RealComputer::attach(path, usedDates, date));
        QVERIFY(RealComputer::attach(path, lastUsedDate, PropertyList{PropertyList::Array{date}}));
        QVERIFY(computer->metadata().item(path) == Item());
    }

    void manyDatesAreReadWhole() {
        const auto computer = LinuxMetadataTest::computer();
        if (!computer) {
            QSKIP("The file system keeps no extended attributes.");
        }
        // As many as a page of the file system holds.
        QList<QDateTime> dates;
        for (int day = 0; day < 250; ++day) {
            dates.append(moment("2026-03-01T08:00:00Z").addDays(-day));
        }
        QVERIFY(computer->metadata().item(computer->makeFile({dates, std::nullopt})) == Item({dates, std::nullopt}));
    }

    void aLinkHasTheRecordOfWhatItLeadsTo() {
        const auto computer = LinuxMetadataTest::computer();
        if (!computer) {
            QSKIP("The file system keeps no extended attributes.");
        }
        const QDateTime date = moment("2026-03-01T08:00:00Z");
        const QString path = computer->makeFile({std::nullopt, date});
        QVERIFY(QFile::link(path, computer->missingFile()));
        QVERIFY(computer->metadata().item(computer->missingFile()) == Item({std::nullopt, date}));
    }

    void aLinkToNowhereHasNone() {
        QTemporaryDir directory;
        const QString link = directory.filePath(u"Gone.app"_s);
        QVERIFY(QFile::link(u"/nowhere"_s, link));
        QVERIFY(!Platform::LinuxMetadata().item(link));
    }

    void aFileSystemWithoutAttributesGivesAnEmptyRecord() {
        // Such as the one that shows the kernel's own state.
        QVERIFY(Platform::LinuxMetadata().item(u"/proc/self/status"_s) == Item());
    }
};

QTEST_GUILESS_MAIN(LinuxMetadataTest)
#include "LinuxMetadataTest.moc"
