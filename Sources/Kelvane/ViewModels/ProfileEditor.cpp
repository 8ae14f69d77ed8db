#include "Kelvane/ViewModels/ProfileEditor.h"

#include "Kelvane/AppModel.h"
#include "Kelvane/ViewModels/AppNames.h"

#include <algorithm>

using namespace DockCore;
using namespace Qt::StringLiterals;

namespace Kelvane {

namespace {

QStringList& list(Profile& profile, ProfileEditor::PickTarget target) {
    return target == ProfileEditor::PickTarget::pinned ? profile.pinned : profile.excluded;
}

QList<AppListRow> rows(const QStringList& bundleIDs, const AppNames& names) {
    QList<AppListRow> rows;
    for (const QString& bundleID : bundleIDs) {
        AppListRow row;
        row.bundleID = bundleID;
        row.name = names.name(bundleID);
        row.isInstalled = names.isInstalled(bundleID);
        row.isFirst = rows.isEmpty();
        row.isLast = rows.size() + 1 == bundleIDs.size();
        rows += row;
    }
    return rows;
}

} // namespace

ProfileEditor::ProfileEditor(AppModel& model)
    : m_model(model)
    , m_id(model.activeProfile().id) {
    connect(&model, &AppModel::profilesChanged, this, &ProfileEditor::reload);
    connect(&model, &AppModel::installedChanged, this, &ProfileEditor::reload);
    connect(&model, &AppModel::rankingsChanged, this, &ProfileEditor::updatePreview);
    connect(&model, &AppModel::currentChanged, this, &ProfileEditor::updatePreview);
    connect(&model, &AppModel::settingsChanged, this, &ProfileEditor::changed);
    reload();
}

void ProfileEditor::setProfile(const QUuid& id) {
    m_id = id;
    reload();
}

Profile ProfileEditor::profile() const {
    const auto found = std::ranges::find(m_model.profiles(), m_id, &Profile::id);
    return found == m_model.profiles().end() ? m_model.activeProfile() : *found;
}

void ProfileEditor::reload() {
    const Profile shown = profile();
    m_pinned.setRows(rows(shown.pinned, AppNames(m_model)));
    m_excluded.setRows(rows(shown.excluded, AppNames(m_model)));
    updatePreview();
}

void ProfileEditor::updatePreview() {
    const Profile shown = profile();
    m_preview.setRows(TileRow::plain(m_model.plan(shown), shown.pinned));
    Q_EMIT changed();
}

bool ProfileEditor::isPreviewDense() const {
    return TileRow::areDense(m_preview.rows());
}

QString ProfileEditor::emptyText() const {
    return AppModel::emptyText(profile());
}

void ProfileEditor::edit(const std::function<void(Profile&)>& change) {
    Profile edited = profile();
    change(edited);
    m_model.update(edited);
}

void ProfileEditor::setName(const QString& name) {
    edit([&name](Profile& profile) { profile.name = name; });
}

void ProfileEditor::setSymbol(const QString& symbol) {
    edit([&symbol](Profile& profile) { profile.symbol = symbol; });
}

void ProfileEditor::setUsageSlots(int count) {
    edit([count](Profile& profile) { profile.adaptiveSlots = std::clamp(count, fewestSlots(), mostSlots()); });
}

QString ProfileEditor::usageSlotsText() const {
    const qint64 count = profile().adaptiveSlots;
    // A file edited by hand may hold a negative count, which fills nothing either.
    return count > 0 ? QString::number(count) : u"None"_s;
}

int ProfileEditor::windowIndex() const {
    return static_cast<int>(allUsageWindows().indexOf(profile().window));
}

void ProfileEditor::setWindowIndex(int index) {
    if (index >= 0 && index < allUsageWindows().size())
        edit([index](Profile& profile) { profile.window = allUsageWindows()[index]; });
}

bool ProfileEditor::isActive() const {
    return profile().id == m_model.activeProfile().id;
}

bool ProfileEditor::isOnly() const {
    return m_model.profiles().size() < 2;
}

void ProfileEditor::add(PickTarget target, const QString& bundleID) {
    Profile shown = profile();
    if (list(shown, target).contains(bundleID))
        return;
    // Added by hand, it has nothing left to come back for.
    erase_if(m_removals, [this, target, &bundleID](const Removal& removal) {
        return removal.profile == profile().id && removal.target == target && removal.bundleID == bundleID;
    });
    edit([target, &bundleID](Profile& profile) { list(profile, target).append(bundleID); });
}

void ProfileEditor::remove(PickTarget target, int row) {
    Profile shown = profile();
    QStringList& apps = list(shown, target);
    if (row < 0 || row >= apps.size())
        return;
    m_removals.append({shown.id, target, row, apps.takeAt(row)});
    m_model.update(shown);
}

const ProfileEditor::Removal* ProfileEditor::lastRemoval() const {
    const auto last = std::find_if(m_removals.rbegin(), m_removals.rend(),
                                   [this](const Removal& removal) { return removal.profile == profile().id; });
    return last == m_removals.rend() ? nullptr : &*last;
}

QString ProfileEditor::undoText() const {
    const Removal* removal = lastRemoval();
    return removal == nullptr ? QString() : u"Undo Remove “"_s + AppNames(m_model).name(removal->bundleID) + u"”"_s;
}

RowListModel* ProfileEditor::undoList() {
    const Removal* removal = lastRemoval();
    if (removal == nullptr)
        return nullptr;
    return removal->target == PickTarget::pinned ? &m_pinned : &m_excluded;
}

void ProfileEditor::undoRemove() {
    const Removal* last = lastRemoval();
    if (last == nullptr)
        return;
    const Removal removal = *last;
    m_removals.removeAt(last - m_removals.constData());
    edit([&removal](Profile& profile) {
        QStringList& apps = list(profile, removal.target);
        apps.insert(std::min(removal.row, apps.size()), removal.bundleID);
    });
}

void ProfileEditor::move(int from, int to) {
    const qsizetype count = profile().pinned.size();
    if (from < 0 || to < 0 || from >= count || to >= count || from == to)
        return;
    edit([from, to](Profile& profile) { profile.pinned.move(from, to); });
}

void ProfileEditor::makeActive() {
    m_model.activate(profile().id, AppModel::Apply::no);
}

void ProfileEditor::applyToDock() {
    const Profile shown = profile();
    m_model.update(shown);
    m_model.activate(shown.id, AppModel::Apply::yes);
}

} // namespace Kelvane
