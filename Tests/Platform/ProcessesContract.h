#pragma once

#include "DockCore/Ports/Processes.h"

#include <QTest>

#include <memory>

/// What every adapter of the Processes port keeps to. A test class derives from it, says where programs come from, and
/// adds what is particular to its system.
class ProcessesContract : public QObject {
    Q_OBJECT

protected:
    /// A computer with a few programs on it.
    class Computer {
    public:
        virtual ~Computer() = default;
        virtual DockCore::Processes& processes() = 0;
        /// The path of a program that ends with its first argument as exit status.
        virtual QString exitingProgram() = 0;
        /// The path of a program that a signal ends.
        virtual QString killedProgram() = 0;
        /// A path at which there is no program.
        virtual QString missingProgram() = 0;
    };
    virtual std::unique_ptr<Computer> makeComputer() = 0;

private Q_SLOTS:
    void theExitStatusIsGiven_data() {
        QTest::addColumn<int>("status");
        QTest::newRow("success") << 0;
        QTest::newRow("failure") << 1;
        QTest::newRow("another failure") << 3;
        QTest::newRow("what shells use for a missing program") << 127;
        QTest::newRow("the largest") << 255;
    }
    void theExitStatusIsGiven() {
        QFETCH(int, status);
        const auto computer = makeComputer();
        QCOMPARE(computer->processes().run(computer->exitingProgram(), {QString::number(status)}),
                 std::optional(status));
    }

    void aProgramThatIsMissingGivesNothing() {
        const auto computer = makeComputer();
        QCOMPARE(computer->processes().run(computer->missingProgram(), {}), std::nullopt);
    }

    void aProgramThatASignalEndsGivesNothing() {
        const auto computer = makeComputer();
        QCOMPARE(computer->processes().run(computer->killedProgram(), {}), std::nullopt);
    }

    void aFailureLeavesNoTrace() {
        const auto computer = makeComputer();
        QCOMPARE(computer->processes().run(computer->missingProgram(), {}), std::nullopt);
        QCOMPARE(computer->processes().run(computer->exitingProgram(), {QStringLiteral("4")}), std::optional(4));
    }
};
