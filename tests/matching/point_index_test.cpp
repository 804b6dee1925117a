#include "matching/point_index.h"

#include "matching/library.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <random>

using namespace pinmora;
using namespace std::chrono_literals;

namespace {

constexpr Date start{std::chrono::seconds(1'210'593'600)};

/// What the index must find, found the plain way.
track_part *walk(const std::vector<track_part *> &arranged, Date target) {
    track_part *best = nullptr;
    std::chrono::seconds least{};
    for (track_part *point : arranged) {
        if (!point->time() || point->lat().view().empty() || point->lon().view().empty()) {
            continue;
        }
        const auto distance = std::chrono::abs(
            std::chrono::duration_cast<std::chrono::seconds>(*point->time() - target));
        if (!best || distance < least) {
            best = point;
            least = distance;
        }
    }
    return best;
}

/// Gives points random times that tie in many ways (few or many, on whole seconds or between them),
/// leaves some without a time or a position, and arranges them in order of time, backwards, as two
/// logs, or in no order.
class RandomLog {
public:
    std::vector<track_part *> arrange(std::vector<track_part *> points) {
        grain_ = std::array{1us, 1'000us, 100'000us, 1'000'000us, 7'000'000us}[below(5)];
        steps_ = std::array{1, 3, 40, 5'000}[below(4)];
        const std::size_t sound = below(2) == 0 ? 1 : 4; // one point in so many is sound
        std::shuffle(points.begin(), points.end(), random_);
        points.resize(below(below(points.size() + 1) + 1));
        for (track_part *point : points) {
            const std::size_t fault = below(sound);
            point->setTimeWithDate(fault == 1 ? std::nullopt : std::optional(instant()));
            point->setLat(fault == 2 ? "" : "47.1");
            point->setLon(fault == 3 ? Text() : "8.2");
        }
        const auto earlier = [](track_part *a, track_part *b) { return a->time() < b->time(); };
        const auto middle = points.begin() + std::ssize(points) / 2;
        switch (below(4)) {
        case 0:
            std::sort(points.begin(), points.end(), earlier);
            break;
        case 1:
            std::sort(points.rbegin(), points.rend(), earlier);
            break;
        case 2:
            std::sort(points.begin(), middle, earlier);
            std::sort(middle, points.end(), earlier);
        }
        return points;
    }

    /// Before, in or after the log.
    Date target() {
        return instant() + (static_cast<int>(below(3)) - 1) * grain_ * steps_ + below(3) * 300ms;
    }

private:
    std::size_t below(std::size_t bound) { return random_() % bound; }
    Date instant() { return start + below(static_cast<std::size_t>(steps_)) * grain_; }

    std::mt19937 random_{20080512};
    std::chrono::microseconds grain_{1};
    int steps_ = 1;
};

} // namespace

class PointIndexTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pointsThatCannotBeFound() {
        PointLibrary library;
        library.addPoint({});
        library.addPoint(start, "");
        library.addPoint(start, {});
        library.addPoint(start, "47.1", "");
        library.addPoint(start, "47.1", {});
        QCOMPARE(PointIndex(library.context.fetch<track_part>()).nearest(start), nullptr);
        track_part &far = library.addPoint(start + 1h);
        QCOMPARE(PointIndex(library.context.fetch<track_part>()).nearest(start), &far);
    }

    void theEndsOfTime() {
        PointLibrary library;
        track_part &last = library.addPoint(Date::max());
        track_part &first = library.addPoint(Date::min());
        const PointIndex index(library.context.fetch<track_part>());
        QCOMPARE(index.nearest(Date::max()), &last);
        QCOMPARE(index.nearest(Date::min()), &first);
        QCOMPARE(index.nearest(Date{-2s}), &first);
        QCOMPARE(index.nearest(Date{}), &last);
        const PointIndex lastOnly(std::vector{&last});
        QCOMPARE(lastOnly.nearest(Date::min()), &last);
    }

    void findsWhatAWalkFinds() {
        PointLibrary library;
        for (int i = 0; i < 300; ++i) {
            library.addPoint({});
        }
        const auto points = library.context.fetch<track_part>();
        RandomLog random;
        for (int round = 0; round < 2500; ++round) {
            const std::vector<track_part *> log = random.arrange(points);
            const PointIndex index(log);
            for (int search = 0; search < 5; ++search) {
                const Date target = random.target();
                QVERIFY2(index.nearest(target) == walk(log, target),
                         qPrintable(QStringLiteral("round %1").arg(round)));
            }
        }
    }
};

QTEST_APPLESS_MAIN(PointIndexTest)
#include "point_index_test.moc"
