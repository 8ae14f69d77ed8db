#include "DockCore/Profile.h"

#include "DockCore/Storage/JSONFile.h"

#include <QHashFunctions>
#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace DockCore {

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
    return QJsonObject{
        {u"id"_s, uuidString(id)},
        {u"name"_s, name},
        {u"symbol"_s, symbol},
        {u"pinned"_s, QJsonArray::fromStringList(pinned)},
        {u"excluded"_s, QJsonArray::fromStringList(excluded)},
        {u"adaptiveSlots"_s, adaptiveSlots},
        {u"window"_s, days(window)},
        {u"separatePinned"_s, separatePinned},
    };
}

std::optional<Profile> Profile::fromJson(const QJsonValue& json) {
    const QJsonObject object = json.toObject();
    const auto id = uuidFromString(object["id"_L1].toString());
    const auto name = JSONFile::string(object["name"_L1]);
    const auto symbol = JSONFile::string(object["symbol"_L1]);
    const auto pinned = JSONFile::strings(object["pinned"_L1]);
    const auto excluded = JSONFile::strings(object["excluded"_L1]);
    const auto adaptiveSlots = JSONFile::integer(object["adaptiveSlots"_L1]);
    const auto windowDays = JSONFile::integer(object["window"_L1]);
    const auto window = windowDays ? usageWindow(*windowDays) : std::nullopt;
    const auto separatePinned = JSONFile::boolean(object["separatePinned"_L1]);
    if (!id || !name || !symbol || !pinned || !excluded || !adaptiveSlots || !window || !separatePinned)
        return std::nullopt;
    return Profile{*id, *name, *symbol, *pinned, *excluded, *adaptiveSlots, *window, *separatePinned};
}

size_t qHash(const Profile& profile, size_t seed) {
    seed = qHashMulti(seed, profile.id, profile.name, profile.symbol, profile.pinned.size());
    seed = qHashRange(profile.pinned.begin(), profile.pinned.end(), seed);
    seed = qHashMulti(seed, profile.excluded.size());
    seed = qHashRange(profile.excluded.begin(), profile.excluded.end(), seed);
    return qHashMulti(seed, profile.adaptiveSlots, days(profile.window), profile.separatePinned);
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
