#include "DockCore/Profile.h"

#include "DockCore/Storage/JSONRecord.h"

#include <QHashFunctions>

using namespace Qt::StringLiterals;

namespace DockCore {

template <>
struct JSONForm<UsageWindow> {
    static QJsonValue write(UsageWindow window) { return days(window); }
    static std::optional<UsageWindow> read(const QJsonValue& json) {
        const std::optional<qint64> days = JSONForm<qint64>::read(json);
        return days ? usageWindow(*days) : std::nullopt;
    }
};

namespace {
constexpr auto profileKeys = [](auto& keys, auto& profile) {
    keys.required(u"id", profile.id);
    keys.required(u"name", profile.name);
    keys.required(u"symbol", profile.symbol);
    keys.required(u"pinned", profile.pinned);
    keys.required(u"excluded", profile.excluded);
    keys.required(u"adaptiveSlots", profile.adaptiveSlots);
    keys.required(u"window", profile.window);
    keys.required(u"separatePinned", profile.separatePinned);
};
} // namespace

Profile Profile::make(const QString& name, const QString& symbol, const QStringList& pinned,
                      const QStringList& excluded, qint64 adaptiveSlots, UsageWindow window, bool separatePinned) {
    return {QUuid::createUuid(), name, symbol, pinned, excluded, adaptiveSlots, window, separatePinned};
}

const QStringList& Profile::symbols() {
    static const QStringList symbols = {
        u"sparkles"_s,   u"briefcase"_s,      u"chevron.left.forwardslash.chevron.right"_s,
        u"video"_s,      u"house"_s,          u"paintbrush"_s,
        u"music.note"_s, u"gamecontroller"_s, u"book"_s,
        u"chart.bar"_s,  u"airplane"_s,       u"heart"_s,
    };
    return symbols;
}

QJsonValue Profile::toJson() const {
    return JSONRecord::write(*this, profileKeys);
}

std::optional<Profile> Profile::fromJson(const QJsonValue& json) {
    return JSONRecord::read<Profile>(json, profileKeys);
}

size_t qHash(const Profile& profile, size_t seed) {
    seed = qHashMulti(seed, profile.id, profile.name, profile.symbol, profile.pinned.size());
    seed = qHashRange(profile.pinned.begin(), profile.pinned.end(), seed);
    seed = qHashMulti(seed, profile.excluded.size());
    seed = qHashRange(profile.excluded.begin(), profile.excluded.end(), seed);
    return qHashMulti(seed, profile.adaptiveSlots, days(profile.window), profile.separatePinned);
}

QJsonValue JSONForm<QUuid>::write(const QUuid& id) {
    return uuidString(id);
}

std::optional<QUuid> JSONForm<QUuid>::read(const QJsonValue& json) {
    return uuidFromString(json.toString());
}

QString uuidString(const QUuid& id) {
    return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> uuidFromString(const QString& text) {
    // QUuid by itself takes more than one spelling.
    constexpr qsizetype length = 36;
    if (text.size() != length)
        return std::nullopt;
    for (qsizetype index = 0; index < length; ++index) {
        const char16_t character = text[index].unicode();
        const bool isDash = index == 8 || index == 13 || index == 18 || index == 23;
        const bool isHexadecimal = (character >= u'0' && character <= u'9') ||
                                   (character >= u'a' && character <= u'f') || (character >= u'A' && character <= u'F');
        if (isDash ? character != u'-' : !isHexadecimal)
            return std::nullopt;
    }
    return QUuid::fromString(text);
}

} // namespace DockCore
