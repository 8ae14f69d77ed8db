#pragma once

#include "DockCore/Ports/Folders.h"

#include <QTest>

#include <memory>

/// What every adapter of the Folders port keeps to. A test class derives from it, says where folders lie, and adds what
/// is particular to its system.
class FoldersContract : public QObject {
    Q_OBJECT

protected:
    /// A computer with a folder that can be filled.
    class Computer {
    public:
        virtual ~Computer() = default;
        virtual DockCore::Folders& folders() = 0;
        /// Makes a folder with these entries, in any order, and gives its path.
        virtual QString fill(const QStringList& names) = 0;
        virtual QString missingFolder() = 0;
    };
    virtual std::unique_ptr<Computer> makeComputer() = 0;

private Q_SLOTS:
    void theHomeFolderIsAnAbsolutePath() {
        const auto computer = makeComputer();
        QVERIFY(computer->folders().home().startsWith(u'/'));
    }

    void theFolderForApplicationDataIsAnAbsolutePath() {
        const auto computer = makeComputer();
        QVERIFY(computer->folders().applicationSupport().startsWith(u'/'));
    }

    void theEntriesOfAFolderAreListedByPath() {
        const auto computer = makeComputer();
        const QStringList names = {QStringLiteral("Safari.app"), QStringLiteral("Überblick ✓.app"),
                                   QStringLiteral("Utilities")};
        const QString folder = computer->fill(names);
        QStringList expected;
        for (const QString& name : names) {
            expected.append(folder + u'/' + name);
        }
        QStringList entries = computer->folders().entries(folder);
        QCOMPARE(computer->folders().entries(folder), entries);
        entries.sort();
        expected.sort();
        QCOMPARE(entries, expected);
    }

    void aFolderWithNothingInItHasNoEntries() {
        const auto computer = makeComputer();
        QCOMPARE(computer->folders().entries(computer->fill({})), QStringList());
    }

    void aFolderThatIsMissingHasNoEntries() {
        const auto computer = makeComputer();
        QCOMPARE(computer->folders().entries(computer->missingFolder()), QStringList());
        QCOMPARE(computer->folders().entries(QString()), QStringList());
    }
};
