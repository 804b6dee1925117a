#pragma once

#include <string_view>

namespace pinmora {

/// A point's time in a GPX file, whole seconds; the "Z" is a literal character.
inline constexpr std::string_view gpxTimeFormat = "%Y-%m-%dT%H:%M:%SZ";

/// A photo's capture time (Exif DateTimeOriginal).
inline constexpr std::string_view exifTimeFormat = "%Y:%m:%d %H:%M:%S";

/// How times are shown: 12 May 2008 14:05:09.
inline constexpr std::string_view shownTimeFormat = "%e %b %Y %H:%M:%S";

/// How a photo's capture time is shown with its weekday.
inline constexpr std::string_view shownDayAndTimeFormat = "%a %e %b %Y %H:%M:%S";

} // namespace pinmora
