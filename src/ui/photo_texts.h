#pragma once

#include "platform/date.h"

#include <QString>

#include <chrono>
#include <optional>

namespace pinmora {

class image;

/// A log that was running as the photo was taken has a point nearer than this.
inline constexpr std::chrono::minutes farGap{5};

/// "8 May 09:54:28", with the year when that is not the present one.
QString shortTime(Date date);

/// What lists show of a photo, each "" where it has none.
namespace photo_texts {

/// With the extension.
QString name(const image &photo);
/// shortTime() of the capture time.
QString taken(const image &photo);
/// The same, and without its year for where there is no room for it, as QFontMetrics::elidedText()
/// has it.
QString takenInLengths(const image &photo);
/// "47.38250, 8.54170"
QString position(const image &photo);
/// "412 m"
QString altitude(const image &photo);
/// "340 m", "2.3 km", "12 km": as far as a person wants to know it. Nothing gives "".
QString distance(std::optional<double> metres);
/// The city, with the distance to it where that is known ("Zürich, 2.3 km"), or else the larger
/// region that is known.
QString place(const image &photo);
/// "412 m · Zürich, 2.3 km"
QString altitudeAndPlace(const image &photo);
/// Its size: "0:03", "1:02:40" from an hour, "2 d" from a day.
QString gap(std::optional<std::chrono::seconds> gap);
/// All of it, to be read out.
QString sentence(const image &photo, std::optional<std::chrono::seconds> gap);

} // namespace photo_texts

} // namespace pinmora
