#include "Kelvane/Views/WindowFrame.h"

#include "DockCore/Error.h"
#include "DockCore/Storage/JSONFile.h"
#include "DockCore/Storage/JSONForm.h"
#include "DockCore/Storage/Paths.h"

#include <QJsonObject>

namespace Kelvane {

using namespace Qt::StringLiterals;
using namespace DockCore;

namespace {

std::optional<int> member(const QJsonObject& object, const QString& name) {
    const std::optional<qint64> value = JSONForm<qint64>::read(object[name]);
    // Farther than any desktop reaches, and safe to add up.
    constexpr qint64 farthest = 1'000'000;
    return value && *value >= -farthest && *value <= farthest ? std::optional(static_cast<int>(*value)) : std::nullopt;
}

QString file(const Paths& paths) {
    return paths.support() + u"/window.json"_s;
}

} // namespace

std::optional<QRect> WindowFrame::load(const Paths& paths) {
    const QJsonObject object = JSONFile::read(file(paths)).value_or(QJsonValue()).toObject();
    const std::optional<int> x = member(object, u"x"_s);
    const std::optional<int> y = member(object, u"y"_s);
    const std::optional<int> width = member(object, u"width"_s);
    const std::optional<int> height = member(object, u"height"_s);
    if (!x || !y || !width || !height || *width <= 0 || *height <= 0)
        return std::nullopt;
    return QRect(*x, *y, *width, *height);
}

void WindowFrame::save(const QRect& frame, const Paths& paths) {
    try {
        JSONFile::save(
            QJsonObject{
                {u"x"_s, frame.x()}, {u"y"_s, frame.y()}, {u"width"_s, frame.width()}, {u"height"_s, frame.height()}},
            file(paths));
    } catch (const Error&) {
    }
}

} // namespace Kelvane
