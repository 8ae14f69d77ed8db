#pragma once

#include "DockCore/Ports/Bundles.h"

#include <QTest>

#include <memory>

/// What every adapter of the Bundles port keeps to. A test class derives from it, says where bundles lie, and adds what
/// is particular to its system.
class BundlesContract : public QObject {
    Q_OBJECT

protected:
    /// A computer on which applications come and go.
    class Computer {
    public:
        virtual ~Computer() = default;
        virtual DockCore::Bundles& bundles() = 0;
        /// Puts a bundle in place of what there was under this name and gives its path; without an identifier it has
        /// none.
        virtual QString install(const QString& name, const std::optional<QString>& identifier) = 0;
        virtual void remove(const QString& path) = 0;
    };
    virtual std::unique_ptr<Computer> makeComputer() = 0;

    static QString word(const char* value) { return QString::fromUtf8(value); }
    static QString safari() { return word("com.apple.Safari"); }

private Q_SLOTS:
    void theIdentifierOfABundleIsGiven() {
        const auto computer = makeComputer();
        const QString path = computer->install(word("Safari"), safari());
        QCOMPARE(computer->bundles().identifier(path), std::optional(safari()));
    }

    void aBundleWithoutAnIdentifierHasNone() {
        const auto computer = makeComputer();
        const QString path = computer->install(word("Odd"), std::nullopt);
        QCOMPARE(computer->bundles().identifier(path), std::nullopt);
    }

    void aPathWithNothingAtItHasNoIdentifier() {
        const auto computer = makeComputer();
        const QString path = computer->install(word("Safari"), safari());
        computer->remove(path);
        QCOMPARE(computer->bundles().identifier(path), std::nullopt);
        QCOMPARE(computer->bundles().identifier(QString()), std::nullopt);
    }

    void aBundleThatIsReplacedHasTheNewIdentifier() {
        const auto computer = makeComputer();
        const QString path = computer->install(word("Notes"), word("org.example.one"));
        QCOMPARE(computer->bundles().identifier(path), std::optional(word("org.example.one")));
        QCOMPARE(computer->install(word("Notes"), word("org.example.two")), path);
        QCOMPARE(computer->bundles().identifier(path), std::optional(word("org.example.two")));
        QCOMPARE(computer->bundles().path(word("org.example.one")), std::nullopt);
        QCOMPARE(computer->bundles().path(word("org.example.two")), std::optional(path));
    }

    void aDisplayNameIsNeverEmpty() {
        const auto computer = makeComputer();
        const QString path = computer->install(word("Safari"), safari());
        QVERIFY(computer->bundles().displayName(path).startsWith(word("Safari")));
        computer->remove(path);
        QVERIFY(!computer->bundles().displayName(path).isEmpty());
    }

    void anApplicationIsFoundByItsIdentifier() {
        const auto computer = makeComputer();
        computer->install(word("Mail"), word("com.apple.mail"));
        const QString path = computer->install(word("Safari"), safari());
        QCOMPARE(computer->bundles().path(safari()), std::optional(path));
    }

    void identifiersCompareExactly() {
        const auto computer = makeComputer();
        computer->install(word("Safari"), safari());
        QCOMPARE(computer->bundles().path(word("com.apple.safari")), std::nullopt);
    }

    void anUnknownIdentifierIsFoundNowhere() {
        const auto computer = makeComputer();
        computer->install(word("Odd"), std::nullopt);
        QCOMPARE(computer->bundles().path(safari()), std::nullopt);
        QCOMPARE(computer->bundles().path(QString()), std::nullopt);
    }

    void anApplicationInstalledLaterIsFound() {
        const auto computer = makeComputer();
        QCOMPARE(computer->bundles().path(safari()), std::nullopt);
        const QString path = computer->install(word("Safari"), safari());
        QCOMPARE(computer->bundles().path(safari()), std::optional(path));
    }

    void anApplicationThatWasRemovedIsNotFound() {
        const auto computer = makeComputer();
        const QString path = computer->install(word("Safari"), safari());
        QCOMPARE(computer->bundles().path(safari()), std::optional(path));
        computer->remove(path);
        QCOMPARE(computer->bundles().path(safari()), std::nullopt);
    }

    void aCopyTakesThePlaceOfOneThatWasRemoved() {
        const auto computer = makeComputer();
        const QString first = computer->install(word("Safari"), safari());
        const QString second = computer->install(word("Safari copy"), safari());
        const std::optional<QString> found = computer->bundles().path(safari());
        QVERIFY(found == first || found == second);
        computer->remove(*found);
        QCOMPARE(computer->bundles().path(safari()), std::optional(found == first ? second : first));
    }
};
