#pragma once

#include <string>
#include <vector>

namespace pinmora::samples {

/// One fix of a receiver. `second` counts from midnight, universal time, on 14 June 2025.
struct Fix {
    int second;
    double latitude;  // degrees, north positive
    double longitude; // degrees, east positive
    double elevation; // metres above sea level
};

/// The parts of the outing: to the pier, across the lake, up the hill.
enum class Leg { Town, Ship, Hill };

/// The fixes of a leg, one every `interval` seconds from its first second on, with the wander of a
/// path and the noise of a receiver; `seed` tells receivers apart.
std::vector<Fix> walk(Leg leg, int interval, unsigned seed);

/// The text of the GPX log: two segments, on foot a point every 12 s, on board one a minute.
std::string gpxLog();

/// The text of the receiver on board: NMEA 0183 with RMC, GGA, GSA and GSV every 5 s.
std::string nmeaLog();

} // namespace pinmora::samples
