#pragma once

#include "DockCore/Ports/Metadata.h"

#include <QTest>

#include <memory>

/// What every adapter of the Metadata port keeps to. A test class derives from it, says how a file gets its record, and
/// adds what is particular to its system.
class MetadataContract : public QObject {
    Q_OBJECT

protected:
    using Item = DockCore::Metadata::Item;

    /// A computer on which files were opened.
    class Computer {
    public:
        virtual ~Computer() = default;
        virtual DockCore::Metadata& metadata() = 0;
        /// Makes a file with this record and gives its path.
        virtual QString makeFile(const Item& item) = 0;
        virtual QString missingFile() = 0;
    };
    /// None, with a reason for the log, where the machine cannot keep such records.
    virtual std::unique_ptr<Computer> makeComputer() = 0;

    static QDateTime moment(const char* text) { return QDateTime::fromString(QString::fromUtf8(text), Qt::ISODate); }

private Q_SLOTS:
    void theRecordOfAFileIsGiven_data() {
        const QDateTime first = moment("2026-03-01T08:00:00Z");
        const QDateTime second = moment("2026-03-02T23:59:59Z");
        QTest::addColumn<Item>("item");
        QTest::newRow("nothing is known of the file") << Item{};
        QTest::newRow("only a last use") << Item{std::nullopt, second};
        QTest::newRow("only used dates") << Item{QList{first, second}, std::nullopt};
        QTest::newRow("both, in the order in which they are kept") << Item{QList{second, first}, second};
        QTest::newRow("an empty list of dates, which is not a missing one") << Item{QList<QDateTime>(), std::nullopt};
        QTest::newRow("a date before 1970") << Item{std::nullopt, moment("1904-01-01T00:00:00Z")};
        QTest::newRow("a date before 2001") << Item{QList{moment("1999-12-31T12:00:00Z")}, std::nullopt};
    }
    void theRecordOfAFileIsGiven() {
        QFETCH(Item, item);
        const auto computer = makeComputer();
        if (!computer) {
            QSKIP("The file system keeps no extended attributes.");
        }
        QVERIFY(computer->metadata().item(computer->makeFile(item)) == item);
    }

    void aFileThatIsMissingHasNoRecord() {
        const auto computer = makeComputer();
        if (!computer) {
            QSKIP("The file system keeps no extended attributes.");
        }
        QVERIFY(!computer->metadata().item(computer->missingFile()));
        QVERIFY(!computer->metadata().item(QString()));
    }
};
