#include "Kelvane/ViewModels/UsageViewModel.h"

#include "DockCore/Ports/Clock.h"
#include "Kelvane/AppModel.h"
#include "Kelvane/ViewModels/AppFacade.h"
#include "Kelvane/ViewModels/UsageText.h"

#include <algorithm>
#include <numeric>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {

QList<RankingRow> rows(const QList<AppScore>& ranking, UsageWindow window) {
    QList<RankingRow> rows;
    for (const AppScore& score : ranking) {
        RankingRow row;
        row.rank = static_cast<int>(rows.size()) + 1;
        row.bundleID = score.app.bundleID;
        row.name = score.app.name;
        row.detail = UsageText::detail(score, window);
        row.reason = UsageText::reason(score);
        row.share = score.score / ranking.first().score;
        rows += row;
    }
    return rows;
}

} // namespace

UsageViewModel::UsageViewModel(AppModel& model)
    : m_model(model) {
    // The chart follows the ranking, not each tick of the tracker, so that both always show the same figures.
    connect(&model, &AppModel::rankingsChanged, this, &UsageViewModel::reload);
    reload();
}

UsageViewModel* UsageViewModel::create(QQmlEngine* engine, QJSEngine*) {
    return new UsageViewModel(AppFacade::of(*engine).model());
}

int UsageViewModel::windowIndex() const {
    return static_cast<int>(allUsageWindows().indexOf(m_window));
}

void UsageViewModel::setWindowIndex(int index) {
    if (index < 0 || index >= allUsageWindows().size() || index == windowIndex())
        return;
    m_window = allUsageWindows()[index];
    reload();
}

QString UsageViewModel::subtitle() const {
    return UsageText::subtitle(m_model.usage().trackingSince());
}

bool UsageViewModel::isEmpty() const {
    return std::ranges::all_of(allUsageWindows(),
                               [this](UsageWindow window) { return m_model.rankings().value(window).isEmpty(); });
}

QString UsageViewModel::total() const {
    const QList<DayBar>& days = m_days.rows();
    return UsageText::duration(std::accumulate(days.begin(), days.end(), 0.0,
                                               [](double sum, const DayBar& day) { return sum + day.seconds; }));
}

QString UsageViewModel::totalCaption() const {
    return u"active · "_s + title(m_window);
}

void UsageViewModel::reload() {
    m_ranking.setRows(rows(m_model.rankings().value(m_window), m_window));
    m_days.setRows(DayBar::bars(m_model.usage(), m_window, m_model.services().clock.now()));
    Q_EMIT changed();
}

} // namespace Kelvane
