#include "gps/log_desk.h"
#include "rows.h"

using namespace pinmora;
using pinmora::test::LogDesk;

namespace {

const std::string declaration = "<?xml version=\"1.0\"?>";

std::string gpx(std::string_view content) {
    return declaration + "<gpx>" + std::string(content) + "</gpx>";
}

/// A segment with a point that has a time and whatever `inside` is.
std::string pointWith(std::string_view inside) {
    return gpx("<trkseg><trkpt lat='47.1' lon='8.5'><time>2008-06-01T09:30:00Z</time>" +
               std::string(inside) + "</trkpt></trkseg>");
}

std::string pointAt(std::string_view time) {
    return gpx("<trkseg><trkpt lat='47.1' lon='8.5'><time>" + std::string(time) +
               "</time></trkpt></trkseg>");
}

} // namespace

class GpxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::useCentralEuropeanTime(); }

    void elementsBecomePoints_data() {
        const auto row = test::rows<std::string, LogReading, std::string>();
        const auto exact = [&](const char *name, const std::string &document, const char *points) {
            row(name, document, LogReading::Exact, points);
        };
        const auto tolerant = [&](const char *name, const std::string &document,
                                  const char *points) {
            row(name, document, LogReading::Tolerant, points);
        };
        exact("all values", pointWith("<ele>412.5</ele>"),
              "47.1/8.5/412.5/2008-06-01T07:30:00/1/1");
        exact("blanks stay", pointWith("<ele> 412.50\n</ele>"),
              "47.1/8.5/ 412.50\n/2008-06-01T07:30:00/1/1");
        exact("no height", pointWith(""), "47.1/8.5/-/2008-06-01T07:30:00/1/1");
        exact("empty height", pointWith("<ele/>"), "47.1/8.5//2008-06-01T07:30:00/1/1");
        exact("pieces of text", pointWith("<ele>4<![CDATA[1]]>&#50;<!-- - -->.5</ele>"),
              "47.1/8.5/412.5/2008-06-01T07:30:00/1/1");
        exact("element within a value", pointWith("<ele>4<b>1</b>2</ele>"),
              "47.1/8.5/2/2008-06-01T07:30:00/1/1");
        exact("time within a value", pointWith("<ele>4<time>1</time>2</ele>"), "47.1/8.5/12/-/1/1");
        exact("latest value counts", pointWith("<time>2008-06-01T09:30:01Z</time>"),
              "47.1/8.5/-/2008-06-01T07:30:01/1/1");
        exact("winter", pointAt("2008-01-01T09:30:00Z"), "47.1/8.5/-/2008-01-01T08:30:00/1/1");
        exact("hour that occurs twice", pointAt("2008-10-26T02:30:00Z"),
              "47.1/8.5/-/2008-10-26T00:30:00/1/1");
        exact("fraction", pointAt("2008-06-01T09:30:00.5Z"), "47.1/8.5/-/-/1/1");
        exact("numeric zone", pointAt("2008-06-01T09:30:00+02:00"), "47.1/8.5/-/-/1/1");
        exact("blank before time", pointAt(" 2008-06-01T09:30:00Z"), "47.1/8.5/-/-/1/1");
        exact("no time", gpx("<trkseg><trkpt lat='1' lon='2'><ele>3</ele></trkpt></trkseg>"), "");
        exact("no latitude", gpx("<trkseg><trkpt lon='2'><time/></trkpt></trkseg>"), "-/2/-/-/1/1");
        exact("values outside segments",
              gpx("<time>2007-01-01T00:00:00Z</time><wpt lat='3' lon='4'><ele>5</ele>"
                  "<time>2007-01-01T00:00:00Z</time></wpt><trkseg/>"
                  "<rte><rtept lat='3' lon='4'><time>2007-01-01T00:00:00Z</time></rtept></rte>"
                  "<trkseg><trkpt lat='1' lon='2'/></trkseg>"),
              "");
        exact("point outside segments",
              gpx("<trkpt lat='1' lon='2'><time/></trkpt><trkseg/><trkpt lat='3' lon='4'><time/>"
                  "</trkpt>"),
              "1/2/-/-/1/- 3/4/-/-/2/1");
        exact("a loose point opens the track for values",
              gpx("<trkpt lat='1' lon='2'/><wpt><time/><ele>9</ele></wpt><trkpt lat='3' lon='4'/>"),
              "3/4/9/-/1/-");
        exact("names as written",
              gpx("<trkseg><TRKPT lat='1' lon='2'><time/></TRKPT><g:trkpt lat='1' lon='2'><time/>"
                  "</g:trkpt></trkseg>"),
              "");
        exact("gpx further in",
              declaration +
                  "<x><trkseg><trkpt lat='0' lon='0'><time/></trkpt></trkseg>"
                  "<gpx><trkseg><trkpt lat='1' lon='2'><time/></trkpt></trkseg></gpx></x>",
              "1/2/-/-/1/1");
        exact("mark before the declaration", "\xEF\xBB\xBF" + pointAt(""), "47.1/8.5/-/-/1/1");
        tolerant("instants", pointAt(" 2008-06-01T09:30:00.25+02:00\n"),
                 "47.1/8.5/-/2008-06-01T07:30:00+250000us/1/1");
        tolerant("universal time", pointAt("2008-06-01T09:30:00Z"),
                 "47.1/8.5/-/2008-06-01T09:30:00/1/1");
        tolerant("impossible day", pointAt("2008-06-31T09:30:00Z"), "47.1/8.5/-/-/1/1");
        tolerant("no time, no point", gpx("<trkseg><trkpt lat='1' lon='2'/></trkseg>"), "");
        tolerant("blanks before all", "\n \t\r\n" + pointAt(""), "47.1/8.5/-/-/1/1");
        tolerant("mark, then blanks", "\xEF\xBB\xBF\n" + pointAt(""), "47.1/8.5/-/-/1/1");
        tolerant("no declaration", "<gpx><trkpt lat='1' lon='2'><time/></trkpt></gpx>",
                 "1/2/-/-/1/-");
    }

    void elementsBecomePoints() {
        const auto [document, reading, points] =
            test::fetch<std::string, LogReading, std::string>();
        LogDesk desk;
        const LogReport report = desk.load(document, reading);
        QCOMPARE(desk.points(), points);
        QCOMPARE(report.points, desk.context.count<track_part>());
        QCOMPARE(report.tracks, desk.context.count<track>());
        QVERIFY(!report.failed() && desk.messages.empty());
        QVERIFY(!desk.progress.progressWindow.isUp());
    }

    void numbersRunOnOverFiles() {
        LogDesk desk;
        const std::string point = "<trkpt lat='1' lon='2'><time/></trkpt>";
        const std::string segment = "<trkseg>" + point + point + "</trkseg>";
        desk.load(gpx(segment + segment));
        desk.context.deleteObject(*desk.context.fetch<track>().front());
        desk.gps.beginLoad();
        desk.load(gpx("<trkseg/>" + segment));
        QCOMPARE(desk.points(), "1/2/-/-/3/2 1/2/-/-/4/2 1/2/-/-/5/4 1/2/-/-/6/4");
        QCOMPARE(desk.gps.trackCount(), 4);
        QCOMPARE(desk.gps.track_partCount(), 6);
    }

    void tracksSayWhereTheyComeFrom() {
        LogDesk desk;
        desk.load(gpx("<trkseg/>"));
        desk.load("$GPGSV\n");
        desk.load("<gpx><trkseg/></gpx>", LogReading::Tolerant);
        std::string readings;
        for (const track *made : desk.context.fetch<track>()) {
            QCOMPARE(made->log_path().string(), desk.pathOf("log").string());
            readings += made->log_reading().string() + " ";
        }
        QCOMPARE(readings, "exact exact tolerant ");
    }

    void aFileWithoutGpxCountsOnlyAfterAGpxFile() {
        LogDesk desk;
        const std::string other = declaration + "<kml><trkseg/></kml>";
        desk.load(other);
        QVERIFY(!desk.gps.gpxFile());
        QCOMPARE(desk.context.count<track>(), 0u);
        desk.load(gpx(""));
        desk.load(other);
        QCOMPARE(desk.context.count<track>(), 1u);
        QVERIFY(desk.gps.gpxFile() && desk.gps.activeLog());
        desk.gps.beginLoad();
        QVERIFY(!desk.gps.gpxFile() && !desk.gps.activeLog());
        desk.load(other);
        QCOMPARE(desk.context.count<track>(), 1u);

        desk.gps.beginLoad();
        desk.gps.parseXMLFile(desk.write("inactive", gpx("<trkseg/>")));
        QCOMPARE(desk.context.count<track>(), 1u);
        desk.gps.setActiveLog(true);
        desk.gps.parseXMLFile(desk.write("active", gpx("<trkseg/>")));
        QCOMPARE(desk.context.count<track>(), 2u);
    }

    /// The point being read and the latest track outlive a file that breaks off.
    void whatABrokenFileLeavesIsThereForTheNext() {
        LogDesk desk;
        desk.load(declaration + "<gpx><trkseg><trkpt lat='1' lon='2'><ele>3</ele><time>");
        QVERIFY(desk.gps.inTrack());
        desk.load(gpx("<wpt><ele>4</ele></wpt><trkpt lat='5' lon='6'><time/></trkpt>"));
        QCOMPARE(desk.points(), "5/6/3/-/1/1");
    }

    void aDeletedTrackGetsNoPoints() {
        LogDesk desk;
        desk.load(gpx("<trkseg/>"));
        desk.context.deleteObject(*desk.context.fetch<track>().front());
        desk.context.commitChanges();
        desk.load(gpx("<trkpt lat='1' lon='2'><time/></trkpt>"));
        QCOMPARE(desk.points(), "1/2/-/-/1/-");
    }

    void malformedFilesAreTold_data() {
        const auto row = test::rows<std::string>();
        const std::string start =
            declaration + "<gpx><trkseg><trkpt lat='1' lon='2'><time/></trkpt>";
        const std::string more = "<trkpt lat='1' lon='2'><time/></trkpt></trkseg></gpx>";
        row("cut off", start);
        row("mismatched tag", start + "</trk>" + more);
        row("undefined entity", start + "&nothing;" + more);
        row("not UTF-8", start + "\xE9" + more);
        row("two roots", start + "</trkseg></gpx><gpx/>");
    }

    void malformedFilesAreTold() {
        const auto [document] = test::fetch<std::string>();
        for (const LogReading reading : {LogReading::Exact, LogReading::Tolerant}) {
            LogDesk desk;
            const LogReport report = desk.load(document, reading);
            QCOMPARE(desk.points(), "1/2/-/-/1/1");
            QVERIFY(report.error == LogError::MalformedGpx);
            QCOMPARE(desk.messages,
                     std::vector<std::string>{"Error! There was an error parsing the GPX file."});
            QVERIFY(!desk.progress.progressWindow.isUp());
            desk.load(pointAt(""), reading);
            QCOMPARE(desk.points(), "1/2/-/-/1/1 47.1/8.5/-/-/2/2");
        }
    }

    void whatIsOfNoUseIsCounted_data() {
        const auto row = test::rows<std::string, std::string, std::string>();
        const std::string one = "1 point or sentence could not be used, in line ";
        const auto point = [](const std::string &time) {
            return "<trkpt lat='1' lon='2'>\n" + time + "\n</trkpt>\n";
        };
        row("all of use", pointAt("2008-06-01T09:30:00Z"), "", "");
        row("fractions",
            declaration + "\n<gpx><trkseg>\n" + point("<time>2008-06-01T09:30:00Z</time>") +
                point("<time>2008-06-01T09:30:00.5Z</time>") + point("<time>never</time>") +
                "</trkseg></gpx>",
            "2 points or sentences could not be used, the first in line 7: 2008-06-01T09:30:00.5Z",
            one + "10: never");
        row("no time", gpx("<trkseg>\n" + point("") + "</trkseg>"), one + "4: point without time",
            one + "4: point without time");
        row("empty time", pointAt(""), one + "1: point with an empty time",
            one + "1: point with an empty time");
        row("control characters, much text", pointAt("\t\n" + std::string(200, 'x')),
            one + "2: .." + std::string(98, 'x') + "...",
            one + "2: .." + std::string(98, 'x') + "...");
    }

    void whatIsOfNoUseIsCounted() {
        const auto [document, exact, tolerant] =
            test::fetch<std::string, std::string, std::string>();
        LogDesk desk;
        QCOMPARE(desk.load(document).unusableText(), exact);
        QCOMPARE(desk.load(document, LogReading::Tolerant).unusableText(), tolerant);
        if (!tolerant.empty()) {
            const LogReport report = desk.load("\n\n" + document, LogReading::Tolerant);
            QCOMPARE(report.sample->line,
                     desk.load(document, LogReading::Tolerant).sample->line + 2);
        }
    }
};

QTEST_GUILESS_MAIN(GpxTest)
#include "gpx_test.moc"
