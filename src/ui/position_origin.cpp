#include "ui/position_origin.h"

#include "shell/offset_words.h"
#include "store/image.h"
#include "ui/photo_texts.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace pinmora::position_origin {
namespace {

struct Origin {
    std::string_view source;
    std::string_view sign;
    const char *words;
};

constexpr std::array origins{
    Origin{PositionSource::log, "from-log", QT_TRANSLATE_NOOP("ui", "From the log")},
    Origin{PositionSource::map, "from-map", QT_TRANSLATE_NOOP("ui", "Placed on the map")},
    Origin{PositionSource::typed, "from-typing", QT_TRANSLATE_NOOP("ui", "Typed")},
    Origin{PositionSource::file, "from-file", QT_TRANSLATE_NOOP("ui", "From the photo’s file")},
    Origin{PositionSource::estimated, "from-neighbours",
           QT_TRANSLATE_NOOP("ui", "Estimated between its neighbours")},
};

const Origin *originOf(const image &photo) {
    const auto found = std::find_if(origins.begin(), origins.end(), [&photo](const Origin &origin) {
        return origin.source == photo.position_source().view();
    });
    return photo.lat_and_lon() && found != origins.end() ? &*found : nullptr;
}

} // namespace

std::string_view sign(const image &photo) {
    const Origin *const origin = originOf(photo);
    return origin ? origin->sign : std::string_view();
}

QString words(const image &photo) {
    const Origin *const origin = originOf(photo);
    if (!origin) {
        return {};
    }
    const QString text = QCoreApplication::translate("ui", origin->words);
    const std::optional<std::chrono::seconds> apart = gap(photo);
    //: where a position is from, and how far in time: "From the log, 3 s from the nearest point"
    return apart ? QCoreApplication::translate("ui", "%1, %2 from the nearest point")
                       .arg(text, QString::fromStdString(durationWords(*apart)))
                 : text;
}

/// Fractions are dropped, as where photos and points are compared.
std::optional<std::chrono::seconds> gap(const image &photo) {
    return photo.lat_and_lon() && photo.position_source().view() == PositionSource::log &&
                   photo.position_gap()
               ? std::optional(std::chrono::seconds(
                     static_cast<std::chrono::seconds::rep>(*photo.position_gap())))
               : std::nullopt;
}

bool isFar(const image &photo) {
    return std::chrono::abs(gap(photo).value_or(std::chrono::seconds{})) > farGap;
}

} // namespace pinmora::position_origin
