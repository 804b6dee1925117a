#include "matching/reading_comparison.h"
#include "rows.h"

using namespace pinmora;
using namespace std::chrono_literals;

using Milliseconds = QList<int>;

namespace {

std::vector<Date> instants(const Milliseconds &times) {
    std::vector<Date> instants;
    for (int time : times) {
        instants.push_back(Date{std::chrono::milliseconds(time)});
    }
    return instants;
}

} // namespace

class ReadingComparisonTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void countsPhotosNearPoints_data() {
        const auto row = test::rows<Milliseconds, Milliseconds, std::size_t>();
        row("nothing at all", {}, {}, 0);
        row("no points", {0}, {}, 0);
        row("no photos", {}, {0}, 0);
        row("five minutes before and after", {-300'000, 300'000}, {0}, 2);
        row("a little more", {-300'001, 300'001}, {0}, 0);
        row("between two points", {400'000}, {0, 800'000}, 0);
        row("each photo once", {0, 0, 1, 900'000}, {0, 1, 2, 3}, 3);
        row("points in no order", {0, 1'000'000, 5'000'000}, {1'200'000, 9'000'000, -200'000}, 2);
    }

    void countsPhotosNearPoints() {
        const auto [photos, points, near] = test::fetch<Milliseconds, Milliseconds, std::size_t>();
        const auto taken = instants(photos);
        const auto logged = instants(points);
        const ReadingComparison exact = compareReadings(taken, logged, {});
        QCOMPARE(exact.exact, near);
        QCOMPARE(exact.tolerant, 0U);
        const ReadingComparison tolerant = compareReadings(taken, {}, logged);
        QCOMPARE(tolerant.exact, 0U);
        QCOMPARE(tolerant.tolerant, near);
    }

    void theEndsOfTime() {
        const std::vector ends{Date::min(), Date::max()};
        const std::vector inner{Date::min() + 300s, Date::max() - 301s, Date{}};
        QCOMPARE(compareReadings(inner, ends, {}).exact, 1U);
    }

    void whenTheLogsAreWorthReadingAnew() {
        QVERIFY((ReadingComparison{.exact = 0, .tolerant = 1}.onlyTolerantPlacesPhotos()));
        QVERIFY((!ReadingComparison{.exact = 0, .tolerant = 0}.onlyTolerantPlacesPhotos()));
        QVERIFY((!ReadingComparison{.exact = 1, .tolerant = 9}.onlyTolerantPlacesPhotos()));
    }
};

QTEST_APPLESS_MAIN(ReadingComparisonTest)
#include "reading_comparison_test.moc"
