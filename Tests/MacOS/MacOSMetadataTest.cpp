#include "Platform/MacOS/MacOSMetadata.h"

#include "MacOS/FakeCoreFoundation/FakeCoreFoundation.h"
#include "Platform/MetadataContract.h"

using namespace Qt::StringLiterals;
using DockCore::PropertyList;
using FakeCoreFoundation::computer;

class MacOSMetadataTest : public MetadataContract {
    Q_OBJECT

    static PropertyList date(const QDateTime& moment) {
        return {PropertyList::Date{.seconds = static_cast<double>(moment.toMSecsSinceEpoch()) / 1000 - 978307200}};
    }

    class IndexedComputer : public Computer {
    public:
        IndexedComputer() { FakeCoreFoundation::reset(); }
        DockCore::Metadata& metadata() override { return m_metadata; }
        QString makeFile(const Item& item) override {
            PropertyList::Dictionary attributes;
            if (item.usedDates) {
                PropertyList::Array dates;
                for (const QDateTime& moment : *item.usedDates) {
                    dates.append(date(moment));
                }
                attributes[u"kMDItemUsedDates"_s] = {dates};
            }
            if (item.lastUsedDate) {
                attributes[u"kMDItemLastUsedDate"_s] = date(*item.lastUsedDate);
            }
            computer().metadata[path()] = attributes;
            return path();
        }
        QString missingFile() override { return u"/Applications/Missing.app"_s; }

        static QString path() { return u"/Applications/Safari.app"_s; }

    private:
        Platform::MacOSMetadata m_metadata;
    };
    std::unique_ptr<Computer> makeComputer() override { return std::make_unique<IndexedComputer>(); }

private Q_SLOTS:
    void cleanup() { QCOMPARE(FakeCoreFoundation::liveObjects(), 0); }

    void anAttributeOfAnotherTypeIsAMissingOne_data() {
        const PropertyList day = date(moment("2026-03-01T08:00:00Z"));
        QTest::addColumn<PropertyList>("usedDates");
        QTest::addColumn<PropertyList>("lastUsedDate");
        QTest::newRow("texts") << PropertyList{u"yesterday"_s} << PropertyList{u"today"_s};
        QTest::newRow("numbers") << PropertyList{qint64(1)} << PropertyList{0.5};
        QTest::newRow("one date for the list, a list for the date") << day << PropertyList{PropertyList::Array{day}};
        QTest::newRow("a list with something else among the dates")
            << PropertyList{PropertyList::Array{day, {u"today"_s}}} << PropertyList{true};
    }
    void anAttributeOfAnotherTypeIsAMissingOne() {
        QFETCH(PropertyList, usedDates);
        QFETCH(PropertyList, lastUsedDate);
        const auto made = makeComputer();
        computer().metadata[IndexedComputer::path()] = {{u"kMDItemUsedDates"_s, usedDates},
                                                        {u"kMDItemLastUsedDate"_s, lastUsedDate}};
        QVERIFY(made->metadata().item(IndexedComputer::path()) == Item{});
    }
};

QTEST_GUILESS_MAIN(MacOSMetadataTest)
#include "MacOSMetadataTest.moc"
