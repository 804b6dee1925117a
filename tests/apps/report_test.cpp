#include "report.h"
#include "rows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace pinmora;
using namespace pinmora::tag;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

Report sample() {
    const WallClock taken = std::chrono::local_days(std::chrono::year(2025) / 6 / 14) + 10h;
    return {.tracks = 2,
            .points = 900,
            .photos = {{.file = "/p/IMG_0001.JPG",
                        .taken = taken,
                        .corrected = taken + 40s,
                        .lat = "+47.3825",
                        .lon = "8.50",
                        .alt = "412.5",
                        .city = "Zürich",
                        .prov = "ZH",
                        .country = "Switzerland",
                        .secondsApart = 3,
                        .savedAs = "/out/IMG_0001.JPG"},
                       {.file = "/p/caf\xe9 \xc3\xa9.jpg",
                        .prov = "ZH",
                        .status = Status::Failed,
                        .message = "disk full"}}};
}

} // namespace

class ReportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void exitStatusTellsWhetherAllIsDone_data() {
        const auto row = test::rows<Status, bool, int>();
        row("saved", Status::Saved, false, 0);
        row("dry run", Status::Matched, false, 0);
        row("unmatched", Status::Unmatched, false, 1);
        row("failed", Status::Failed, false, 1);
        row("a path could not be used", Status::Saved, true, 1);
    }

    void exitStatusTellsWhetherAllIsDone() {
        const auto [status, trouble, exit] = test::fetch<Status, bool, int>();
        QCOMPARE(exitStatus({.photos = {{}, {.status = status}, {}}, .trouble = trouble}), exit);
    }

    void jsonKeepsTextsAndTellsNullFromEmpty() {
        const QByteArray json = QByteArray::fromStdString(jsonText(sample()));
        const QJsonObject document = QJsonDocument::fromJson(json).object();
        QCOMPARE(document[u"tracks"].toInt(), 2);
        QCOMPARE(document[u"points"].toInt(), 900);
        const QJsonObject first = document[u"photos"][0].toObject();
        QCOMPARE(first[u"taken"].toString(), u"2025-06-14T10:00:00"_s);
        QCOMPARE(first[u"corrected"].toString(), u"2025-06-14T10:00:40"_s);
        QCOMPARE(first[u"lat"].toString(), u"+47.3825"_s);
        QCOMPARE(first[u"lon"].toString(), u"8.50"_s);
        QCOMPARE(first[u"city"].toString(), u"Zürich"_s);
        QCOMPARE(first[u"prov"].toString(), u"ZH"_s);
        QCOMPARE(first[u"country"].toString(), u"Switzerland"_s);
        QCOMPARE(first[u"seconds_apart"].toInt(), 3);
        QCOMPARE(first[u"status"].toString(), u"saved"_s);
        const QJsonObject second = document[u"photos"][1].toObject();
        QVERIFY(second[u"taken"].isNull() && second[u"corrected"].isNull());
        QVERIFY(second[u"seconds_apart"].isNull());
        QCOMPARE(second[u"lat"], QJsonValue(QString()));
        QCOMPARE(second[u"file"].toString(), u"/p/caf\\xE9 é.jpg"_s);
        QCOMPARE(second[u"message"].toString(), u"disk full"_s);
    }

    void tableColumnsStandUnderEachOther() {
        const QStringList lines = QString::fromStdString(tableText(sample())).split(u'\n');
        QCOMPARE(lines[1].indexOf(u"2025-06-14"_s), lines[0].indexOf(u"Taken"));
        QCOMPARE(lines[2].indexOf(u"no capture time"_s), lines[0].indexOf(u"Taken"));
        QCOMPARE(lines[1].indexOf(u"+47.3825, 8.50"_s), lines[0].indexOf(u"Position"));
        QVERIFY(lines[1].contains(u"412.5 m  Zürich, ZH, Switzerland "_s));
        QCOMPARE(lines[2].indexOf(u"ZH "_s), lines[0].indexOf(u"Place"));
        QVERIFY(lines[1].endsWith(u"IMG_0001.JPG"_s));
        QVERIFY(lines[3].contains(u"failed: disk full"_s));
        QCOMPARE(lines[4], u"2 photos: 1 saved, 1 failed. 2 tracks, 900 points."_s);
    }
};

QTEST_APPLESS_MAIN(ReportTest)
#include "report_test.moc"
