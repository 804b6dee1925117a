#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>

#include "route.h"

namespace pinmora::samples {

namespace {

template <typename... Values>
std::string print(const char *format, Values... values) {
    std::array<char, 120> text{};
    std::snprintf(text.data(), text.size(), format, values...);
    return text.data();
}

/// Frames a sentence: "$", the checksum (all characters between "$" and "*" in exclusive or) and
/// the line end that the standard asks for.
std::string sentence(const std::string &body) {
    unsigned sum = 0;
    for (const char character : body)
        sum ^= static_cast<unsigned char>(character);
    return "$" + body + print("*%02X\r\n", sum);
}

/// Degrees in the form of the sentences, ddmm.mmmm (`width` 2) or dddmm.mmmm (`width` 3). Counted
/// in ten-thousandths of a minute, so that rounding never gives 60 minutes.
std::string degreesAndMinutes(double degrees, int width) {
    const long parts = std::lround(degrees * 600'000);
    return print("%0*ld%02ld.%04ld", width, parts / 600'000, parts / 10'000 % 60, parts % 10'000);
}

struct Motion {
    double knots;
    double course; // degrees from north, clockwise
};

Motion motion(const Fix &from, const Fix &to) {
    const double north = (to.latitude - from.latitude) * 60; // nautical miles
    const double east = (to.longitude - from.longitude) * 60 * 0.680;
    const double course = std::atan2(east, north) * 180 / std::numbers::pi;
    return {std::hypot(north, east) * 3600 / (to.second - from.second),
            course < 0 ? course + 360 : course};
}

std::string sentences(const Fix &fix, const Motion &moving) {
    const std::string time =
        print("%02d%02d%02d.00", fix.second / 3600, fix.second / 60 % 60, fix.second % 60);
    const std::string place =
        degreesAndMinutes(fix.latitude, 2) + ",N," + degreesAndMinutes(fix.longitude, 3) + ",E";
    return sentence("GPRMC," + time + ",A," + place +
                    print(",%.1f,%.1f,140625,,,A", moving.knots, moving.course)) +
           sentence("GPGGA," + time + "," + place +
                    print(",1,08,1.0,%.1f,M,47.9,M,,", fix.elevation)) +
           sentence("GPGSA,A,3,02,05,07,13,15,20,28,30,,,,,1.8,1.0,1.5") +
           sentence("GPGSV,2,1,08,02,31,241,38,05,62,293,44,07,24,068,36,13,48,176,42") +
           sentence("GPGSV,2,2,08,15,19,312,35,20,12,041,31,28,71,105,45,30,37,128,40");
}

} // namespace

std::string nmeaLog() {
    const std::vector<Fix> fixes = walk(Leg::Ship, 5, 4);
    std::string text;
    for (std::size_t i = 0; i + 1 < fixes.size(); ++i)
        text += sentences(fixes[i], motion(fixes[i], fixes[i + 1]));
    return text + sentences(fixes.back(), {0, 0});
}

} // namespace pinmora::samples
