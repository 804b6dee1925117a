#include "matching/offset_proposal.h"

#include "matching/clock_evidence.h"
#include "matching/library.h"
#include "matching/nearest_points.h"
#include "rows.h"
#include "store/image.h"

#include <functional>

using namespace pinmora;
using namespace std::chrono_literals;
using std::chrono::seconds;

namespace {

const Date dawn = std::chrono::sys_days(std::chrono::year(2024) / 5 / 1) + 6h;

/// A log with a point every 10 s from 6 to 9 and from 9:40 to 11.
TrackCoverage morning() {
    std::vector<Date> points;
    for (seconds at = 0s; at < 5h; at += 10s) {
        if (at < 3h || at > 3h + 40min) {
            points.push_back(dawn + at);
        }
    }
    return TrackCoverage(points);
}

/// Forty photos by a clock that is off, many at the beginning and at the end of the log, none in
/// its pause.
OffsetEvidence outing(seconds off) {
    OffsetEvidence evidence{.photos = {}, .coverage = morning()};
    for (int i = 0; i < 10; ++i) {
        for (const seconds at : std::initializer_list<seconds>{
                 i * 20s, 40min + i * 11min, 3h + 43min + i * 6min, 5h - i * 20s}) {
            evidence.photos.push_back(dawn + at - off);
        }
    }
    return evidence;
}

/// All night and all day.
OffsetEvidence longLog(seconds off) {
    OffsetEvidence evidence = outing(off);
    evidence.coverage = TrackCoverage();
    std::vector<Date> points;
    for (seconds at = -12h; at < 24h; at += 60s) {
        points.push_back(dawn + at);
    }
    evidence.coverage = TrackCoverage(points);
    return evidence;
}

using Make = std::function<OffsetEvidence()>;

std::string told(const std::optional<OffsetProposal> &proposal) {
    return proposal
               ? (proposal->isApproximate ? "about " : "") +
                     std::to_string(proposal->offset.count()) + " s, " +
                     std::to_string(proposal->onTrack) + " of " + std::to_string(proposal->photos)
               : "silent";
}

} // namespace

class OffsetProposalTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void proposals_data();
    void proposals() {
        const auto [make, expected] = test::fetch<Make, std::string>();
        QCOMPARE(told(proposeOffset(make())), expected);
    }

    void tags_data() {
        const auto row = test::rows<std::string, std::string>();
        row("east", "+05:45", "20700");
        row("west", "-03:30", "-12600");
        row("universal", "Z", "0");
        for (const char *rubbish :
             {"", "+5:45", "+05:60", "+16:00", "+0545 ", "05:45", "+-1:00", "+05:4x"}) {
            row(rubbish[0] ? rubbish : "empty", rubbish, "none");
        }
    }

    void tags() {
        const auto [tag, expected] = test::fetch<std::string, std::string>();
        const auto zone = zoneOfTag(tag);
        QCOMPARE(zone ? std::to_string(zone->count()) : "none", expected);
    }

    /// Who is heard, and when the tracks passed by the photo that a hand has placed.
    void evidence() {
        PointLibrary library;
        const auto addPhoto = [&library](const char *source, const char *lat,
                                         const char *lon) -> image & {
            auto &photo = library.context.insert<image>();
            photo.setDate("2024:05:01 10:00:00");
            photo.setLat(lat);
            photo.setLon(lon);
            photo.setPosition_source(source);
            return photo;
        };
        addPhoto("map", "47.0005", "179.9999");
        addPhoto("log", "47.0005", "179.9999").setOffset_time_original("+02:00");
        addPhoto("typed", "10", "10"); // nowhere near
        addPhoto("file", "", "").setNo_capture_time(true);
        addPhoto("file", "", "").setCamera("Another");
        for (const auto &[minute, lat] :
             {std::pair(0min, "47.002"), std::pair(1min, "47.001"), std::pair(2min, "47.0004"),
              std::pair(3min, "47.003"), std::pair(9min, "47.0")}) {
            library.addPoint(dawn + minute, lat, "-179.9999");
        }
        NearestPoints points(library.context);
        const OffsetEvidence found =
            gatherEvidence(library.context, points, 5s,
                           [](const image &photo) { return photo.camera().view().empty(); });
        QCOMPARE(found.photos.size(), 3u);
        QCOMPARE(found.impliedByTags.size(), 1u);
        QCOMPARE(found.placed.size(), 1u);
        QVERIFY(found.placed.front().passes == (std::vector<Date>{dawn + 2min, dawn + 9min}));
        QVERIFY(found.inForce == 5s && found.coverage.covers(dawn));
    }
};

void OffsetProposalTest::proposals_data() {
    const auto row = test::rows<Make, std::string>();
    const auto change = [](OffsetEvidence evidence,
                           const std::function<void(OffsetEvidence &)> &by) {
        return [evidence, by] {
            OffsetEvidence changed = evidence;
            by(changed);
            return changed;
        };
    };
    for (const auto &[name, off] :
         {std::pair("an hour", seconds(1h)), std::pair("west", seconds(-7h)),
          std::pair("half an hour", seconds(5h + 30min)),
          std::pair("a quarter", seconds(5h + 45min)),
          std::pair("the other side of the earth", seconds(-13h)),
          std::pair("minutes", seconds(-37min)),
          std::pair("years", seconds(24h * 3000 + 5h + 7min))}) {
        row(
            name, [by = off] { return outing(by); },
            (off % 15min == 0s ? "" : "about ") + std::to_string(off.count()) + " s, 40 of 40");
    }
    row(
        "right", [] { return outing(0s); }, "silent");
    row(
        "minutes off, on the track all the same", [] { return outing(200s); }, "silent");
    row("corrected already", change(outing(2h), [](OffsetEvidence &it) { it.inForce = 2h; }),
        "silent");
    row("corrected wrongly", change(outing(2h), [](OffsetEvidence &it) { it.inForce = -2h; }),
        "7200 s, 40 of 40");
    row("a clock that drifts",
        change(outing(2h),
               [](OffsetEvidence &it) {
                   for (std::size_t i = 0; i < it.photos.size(); ++i) {
                       it.photos[i] += seconds(i * 3);
                   }
               }),
        "7200 s, 40 of 40");
    row("some at home",
        change(outing(2h),
               [](OffsetEvidence &it) {
                   for (int i = 0; i < 5; ++i) {
                       it.photos.push_back(dawn + 20h + i * 1min);
                   }
               }),
        "7200 s, 40 of 45");
    row("most at home",
        change(outing(2h),
               [](OffsetEvidence &it) {
                   for (int i = 0; i < 41; ++i) {
                       it.photos.push_back(dawn + 30 * 24h + i * 36h);
                   }
               }),
        "silent");
    row("two cameras",
        change(outing(2h),
               [](OffsetEvidence &it) {
                   const auto other = outing(-3h).photos;
                   it.photos.insert(it.photos.end(), other.begin(), other.end());
               }),
        "silent");
    row(
        "a log as good for several hours", [] { return longLog(12h); }, "silent");
    row("a short walk, where a half hour is as good as the minutes around it",
        change(outing(5h + 40min),
               [](OffsetEvidence &it) {
                   it.coverage = TrackCoverage(std::vector<Date>{dawn, dawn + 8min, dawn + 16min,
                                                                 dawn + 24min, dawn + 30min});
                   for (std::size_t i = 0; i < it.photos.size(); ++i) {
                       it.photos[i] = dawn + 12min + seconds(i * 6) - (5h + 40min);
                   }
               }),
        "silent");
    row("the zone tag decides",
        change(longLog(20h), [](OffsetEvidence &it) { it.impliedByTags.assign(40, 20h); }),
        "72000 s, 40 of 40");
    row("a tag that puts none on the track",
        change(outing(0s), [](OffsetEvidence &it) { it.impliedByTags.assign(40, 12h); }), "silent");
    row("a tag against the photos",
        change(outing(2h), [](OffsetEvidence &it) { it.impliedByTags.assign(40, -9h); }),
        "7200 s, 40 of 40");
    const auto place = [](OffsetEvidence &it, seconds off, std::vector<Date> passes) {
        it.placed.push_back({dawn + 1h - off, std::move(passes)});
    };
    row("a placed photo decides",
        change(longLog(3h + 12s),
               [place](OffsetEvidence &it) { place(it, 3h + 12s, {dawn + 1h}); }),
        "10812 s, 40 of 40");
    row("to the second where all lie on the track",
        change(outing(-192s), [place](OffsetEvidence &it) { place(it, -192s, {dawn + 1h}); }),
        "-192 s, 40 of 40");
    row("the way there and back",
        change(outing(2h),
               [place](OffsetEvidence &it) {
                   place(it, 2h, {dawn + 1h, dawn + 4h});
               }),
        "7200 s, 40 of 40");
    row("placed where the track was long before",
        change(outing(0s), [place](OffsetEvidence &it) { place(it, 0s, {dawn - 4000h}); }),
        "silent");
    row("placed photos confirm the clock",
        change(longLog(0s), [place](OffsetEvidence &it) { place(it, 0s, {dawn + 1h}); }), "silent");
    row("one photo", change(outing(2h), [](OffsetEvidence &it) { it.photos.resize(1); }), "silent");
    row("no photos", change(outing(2h), [](OffsetEvidence &it) { it.photos.clear(); }), "silent");
    row("no track", change(outing(2h), [](OffsetEvidence &it) { it.coverage = {}; }), "silent");
    row("all at the same moment",
        change(outing(2h), [](OffsetEvidence &it) { it.photos.assign(40, it.photos.front()); }),
        "silent");
    row("the ends of the calendar",
        change(outing(2h),
               [](OffsetEvidence &it) {
                   using namespace std::chrono;
                   it.photos.push_back(sys_days(year(1) / 1 / 1));
                   it.photos.push_back(sys_days(year(9999) / 12 / 31));
                   it.inForce = hours(1'000'000);
               }),
        "7200 s, 40 of 42");
}

QTEST_GUILESS_MAIN(OffsetProposalTest)
#include "offset_proposal_test.moc"
