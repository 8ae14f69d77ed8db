#include "Kelvane/ViewModels/UsageViewModel.h"

#include "DockCore/Ports/Clock.h"
#include "Kelvane/AppModel.h"
#include "Kelvane/ViewModels/UsageText.h"

#include <algorithm>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

UsageViewModel::UsageViewModel(AppModel& model, QObject* parent)
    : QObject(parent)
    , m_model(model) {
    // The chart follows the ranking, not each tick of the tracker, so that both always show the same figures.
    connect(&model, &AppModel::rankingsChanged, this, &UsageViewModel::reload);
    reload();
}

QStringList UsageViewModel::windows() const {
    QStringList titles;
    for (const UsageWindow window : allUsageWindows())
        titles += title(window);
    return titles;
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
    return UsageText::duration(m_days.totalSeconds());
}

QString UsageViewModel::totalCaption() const {
    return u"active · "_s + title(m_window);
}

void UsageViewModel::reload() {
    m_ranking.setRanking(m_model.rankings().value(m_window), m_window);
    m_days.setDays(m_model.usage(), m_window, m_model.services().clock.now());
    Q_EMIT changed();
}

} // namespace Kelvane
