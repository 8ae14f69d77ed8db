#include "Platform/SelfTestReport.h"

#include "DockCore/Ports/Preferences.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using DockCore::PropertyList;

namespace Platform {

namespace {

QString word(SelfTestReport::Verdict verdict) {
    switch (verdict) {
    case SelfTestReport::Verdict::passed:
        return u"ok"_s;
    case SelfTestReport::Verdict::failed:
        return u"FAILED"_s;
    case SelfTestReport::Verdict::told:
        break;
    }
    return u"-"_s;
}

} // namespace

void SelfTestReport::add(Verdict verdict, const QString& subject, const QString& finding) {
    m_rows.append({verdict, subject, finding});
}

void SelfTestReport::check(bool holds, const QString& subject, const QString& finding) {
    add(holds ? Verdict::passed : Verdict::failed, subject, finding);
}

bool SelfTestReport::hasFailed() const {
    return std::ranges::any_of(m_rows, [](const Row& row) { return row.verdict == Verdict::failed; });
}

QString SelfTestReport::text() const {
    qsizetype widest = 0;
    for (const Row& row : m_rows)
        widest = std::max(widest, row.subject.size());
    QString result;
    for (const Row& row : m_rows) {
        QString line = word(row.verdict).leftJustified(8) + row.subject;
        if (!row.finding.isEmpty())
            line = line.leftJustified(8 + widest + 2) + row.finding;
        result += line + u'\n';
    }
    const auto count = [this](Verdict verdict) { return std::ranges::count(m_rows, verdict, &Row::verdict); };
    return result + u"%1 ok, %2 failed\n"_s.arg(count(Verdict::passed)).arg(count(Verdict::failed));
}

void checkPreferences(SelfTestReport& report, DockCore::Preferences& own) {
    const QString key = u"SelfTest"_s;
    const PropertyList value{PropertyList::Dictionary{
        {u"text"_s, {u"ä€𝄞"_s}},
        {u"number"_s, {qint64(-1)}},
        {u"real"_s, {0.5}},
        {u"truth"_s, {true}},
        {u"bytes"_s, {QByteArray("\0\xff", 2)}},
        {u"moment"_s, {PropertyList::Date{.seconds = 1000}}},
        {u"list"_s, {PropertyList::Array{{u"one"_s}, {PropertyList::Dictionary{}}}}},
    }};
    own.setValue(key, value);
    report.check(own.synchronize(), u"A value of our own is saved"_s);
    report.check(own.copyValue(key) == value, u"It is read back as it was"_s);
    own.setValue(key, std::nullopt);
    report.check(own.synchronize() && !own.copyValue(key), u"It is removed again"_s);
}

} // namespace Platform
