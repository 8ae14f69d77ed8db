#include "Platform/SelfTestReport.h"

#include <algorithm>

using namespace Qt::StringLiterals;

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
    for (const Row& row : m_rows) {
        widest = std::max(widest, row.subject.size());
    }
    QString result;
    for (const Row& row : m_rows) {
        QString line = word(row.verdict).leftJustified(8) + row.subject;
        if (!row.finding.isEmpty()) {
            line = line.leftJustified(8 + widest + 2) + row.finding;
        }
        result += line + u'\n';
    }
    const auto count = [this](Verdict verdict) { return std::ranges::count(m_rows, verdict, &Row::verdict); };
    return result + u"%1 ok, %2 failed\n"_s.arg(count(Verdict::passed)).arg(count(Verdict::failed));
}
