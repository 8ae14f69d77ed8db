#pragma once

#include <QList>
#include <QString>

namespace DockCore {
class Preferences;
}

namespace Platform {

/// The table of a self-test while it is being filled. It knows nothing of what is tested. One thread.
class SelfTestReport {
public:
    enum class Verdict {
        passed,
        failed,
        /// Told for the reader: neither good nor bad.
        told,
    };

    void add(Verdict verdict, const QString& subject, const QString& finding = {});
    /// Adds `passed` or `failed`.
    void check(bool holds, const QString& subject, const QString& finding = {});

    bool hasFailed() const;
    /// Aligned lines, one a row, and a last line with the count.
    QString text() const;

private:
    struct Row {
        Verdict verdict;
        QString subject;
        QString finding;
    };
    QList<Row> m_rows;
};

/// Saves a value of every kind in a domain of our own, reads it back and removes it.
void checkPreferences(SelfTestReport& report, DockCore::Preferences& own);

} // namespace Platform
