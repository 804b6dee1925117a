#include "route.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "dice.h"

namespace pinmora::samples {

namespace {

constexpr double metresPerDegree = 111'195;
constexpr double longitudeShrink = 0.680; // cosine of the latitude of Zug

constexpr int at(int hour, int minute, int second = 0) {
    return hour * 3600 + minute * 60 + second;
}

const std::vector<Fix> &waypoints(Leg leg) {
    static const std::vector<Fix> town = {
        {at(15, 31), 47.17360, 8.51520, 421}, {at(15, 36), 47.17335, 8.51500, 420},
        {at(15, 44), 47.17060, 8.51400, 417}, {at(15, 52), 47.16760, 8.51490, 416},
        {at(15, 56), 47.16635, 8.51525, 417}, {at(15, 59), 47.16600, 8.51560, 419},
        {at(16, 10), 47.16605, 8.51552, 419}, {at(16, 13), 47.16760, 8.51490, 416},
        {at(16, 18), 47.17040, 8.51310, 415}, {at(16, 20), 47.17035, 8.51285, 414},
    };
    static const std::vector<Fix> ship = {
        {at(16, 20), 47.17035, 8.51285, 414}, {at(16, 22), 47.16820, 8.50880, 414},
        {at(16, 25), 47.16250, 8.50480, 414}, {at(16, 28), 47.15550, 8.50400, 414},
        {at(16, 30), 47.15130, 8.50540, 414}, {at(16, 32), 47.14805, 8.50765, 414},
    };
    static const std::vector<Fix> hill = {
        {at(16, 34), 47.14800, 8.50790, 415}, {at(16, 41), 47.14830, 8.51070, 436},
        {at(16, 49), 47.14970, 8.51380, 478}, {at(16, 58), 47.15120, 8.51600, 520},
        {at(17, 8), 47.14960, 8.51870, 577},  {at(17, 18), 47.14780, 8.52000, 630},
        {at(17, 28), 47.14870, 8.52320, 682}, {at(17, 38), 47.14720, 8.52580, 735},
        {at(17, 48), 47.14520, 8.52720, 783}, {at(17, 58), 47.14620, 8.53100, 838},
        {at(18, 8), 47.14550, 8.53450, 884},  {at(18, 15), 47.14620, 8.53840, 925},
        {at(18, 25), 47.14630, 8.53860, 925}, {at(18, 33), 47.14280, 8.53970, 952},
        {at(18, 40), 47.13920, 8.54080, 984}, {at(18, 52), 47.13912, 8.54088, 984},
        {at(19, 2), 47.14280, 8.53920, 955},  {at(19, 12), 47.14600, 8.53620, 925},
        {at(19, 17), 47.14660, 8.53520, 918}, {at(19, 25), 47.14662, 8.53515, 918},
    };
    return leg == Leg::Town ? town : leg == Leg::Ship ? ship : hill;
}

/// The slope at waypoint `i`: the gentler of its two neighbours, none at a turn or a rest, so that
/// the curve never runs past a waypoint.
double slope(const std::vector<Fix> &way, std::size_t i, double Fix::*value) {
    if (i == 0 || i + 1 == way.size())
        return 0;
    const double before = (way[i].*value - way[i - 1].*value) / (way[i].second - way[i - 1].second);
    const double after = (way[i + 1].*value - way[i].*value) / (way[i + 1].second - way[i].second);
    if (before * after <= 0)
        return 0;
    return std::abs(before) < std::abs(after) ? before : after;
}

/// Cubic Hermite curve through the waypoints, between `i` and `i + 1` at the part `t` of the way.
double curve(const std::vector<Fix> &way, std::size_t i, double t, double Fix::*value) {
    const double span = way[i + 1].second - way[i].second;
    const double t2 = t * t;
    const double t3 = t2 * t;
    return (2 * t3 - 3 * t2 + 1) * way[i].*value + (3 * t2 - 2 * t3) * way[i + 1].*value +
           span * ((t3 - 2 * t2 + t) * slope(way, i, value) + (t3 - t2) * slope(way, i + 1, value));
}

} // namespace

std::vector<Fix> walk(Leg leg, int interval, unsigned seed) {
    const std::vector<Fix> &way = waypoints(leg);
    Dice dice(seed);
    std::vector<Fix> fixes;
    double noise[3] = {0, 0, 0}; // metres north, east, up; it drifts as a receiver's does
    std::size_t i = 0;
    for (int second = way.front().second; second <= way.back().second; second += interval) {
        while (i + 2 < way.size() && second >= way[i + 1].second)
            ++i;
        const double t =
            static_cast<double>(second - way[i].second) / (way[i + 1].second - way[i].second);
        const double north = (way[i + 1].latitude - way[i].latitude) * metresPerDegree;
        const double east =
            (way[i + 1].longitude - way[i].longitude) * metresPerDegree * longitudeShrink;
        const double bends = leg == Leg::Hill ? 0.07 : leg == Leg::Town ? 0.02 : 0;
        const double aside = bends * std::sin(3 * std::numbers::pi * t);
        for (double &part : noise)
            part = 0.85 * part + dice.between(-1, 1);
        fixes.push_back(
            {second, curve(way, i, t, &Fix::latitude) + (noise[0] - aside * east) / metresPerDegree,
             curve(way, i, t, &Fix::longitude) +
                 (noise[1] + aside * north) / (metresPerDegree * longitudeShrink),
             curve(way, i, t, &Fix::elevation) + 0.7 * noise[2]});
    }
    return fixes;
}

} // namespace pinmora::samples
