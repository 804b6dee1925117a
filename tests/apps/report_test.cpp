#include "report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace pinmora;
using namespace pinmora::tag;
using namespace std::chrono_literals;

class ReportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void exitStatusTellsWhetherAllIsDone_data();
    void exitStatusTellsWhetherAllIsDone();
    void jsonKeepsTextsAndTellsNullFromEmpty();
    void tableColumnsStandUnderEachOther();
};

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

void ReportTest::exitStatusTellsWhetherAllIsDone_data() {
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("trouble");
    QTest::addColumn<int>("exit");
    QTest::newRow("saved") << int(Status::Saved) << false << 0;
    QTest::newRow("dry run") << int(Status::Matched) << false << 0;
    QTest::newRow("unmatched") << int(Status::Unmatched) << false << 1;
    QTest::newRow("failed") << int(Status::Failed) << false << 1;
    QTest::newRow("a path could not be used") << int(Status::Saved) << true << 1;
}

void ReportTest::exitStatusTellsWhetherAllIsDone() {
    QFETCH(int, status);
    QFETCH(bool, trouble);
    QFETCH(int, exit);
    Report report{.photos = {{}, {.status = static_cast<Status>(status)}, {}}, .trouble = trouble};
    QCOMPARE(exitStatus(report), exit);
}

void ReportTest::jsonKeepsTextsAndTellsNullFromEmpty() {
    const QByteArray json = QByteArray::fromStdString(jsonText(sample()));
    const QJsonObject document = QJsonDocument::fromJson(json).object();
    QCOMPARE(document[u"tracks"].toInt(), 2);
    QCOMPARE(document[u"points"].toInt(), 900);
    const QJsonObject first = document[u"photos"][0].toObject();
    QCOMPARE(first[u"taken"].toString(), QStringLiteral("2025-06-14T10:00:00"));
    QCOMPARE(first[u"corrected"].toString(), QStringLiteral("2025-06-14T10:00:40"));
    QCOMPARE(first[u"lat"].toString(), QStringLiteral("+47.3825"));
    QCOMPARE(first[u"lon"].toString(), QStringLiteral("8.50"));
    QCOMPARE(first[u"city"].toString(), QStringLiteral("Zürich"));
    QCOMPARE(first[u"prov"].toString(), QStringLiteral("ZH"));
    QCOMPARE(first[u"country"].toString(), QStringLiteral("Switzerland"));
    QCOMPARE(first[u"seconds_apart"].toInt(), 3);
    QCOMPARE(first[u"status"].toString(), QStringLiteral("saved"));
    const QJsonObject second = document[u"photos"][1].toObject();
    QVERIFY(second[u"taken"].isNull() && second[u"corrected"].isNull());
    QVERIFY(second[u"seconds_apart"].isNull());
    QCOMPARE(second[u"lat"], QJsonValue(QString()));
    QCOMPARE(second[u"file"].toString(), QStringLiteral("/p/caf\\xE9 é.jpg"));
    QCOMPARE(second[u"message"].toString(), QStringLiteral("disk full"));
}

void ReportTest::tableColumnsStandUnderEachOther() {
    const QStringList lines = QString::fromStdString(tableText(sample())).split(u'\n');
    QCOMPARE(lines[1].indexOf(QStringLiteral("2025-06-14")), lines[0].indexOf(u"Taken"));
    QCOMPARE(lines[2].indexOf(QStringLiteral("no capture time")), lines[0].indexOf(u"Taken"));
    QCOMPARE(lines[1].indexOf(QStringLiteral("+47.3825, 8.50")), lines[0].indexOf(u"Position"));
    QVERIFY(lines[1].contains(QStringLiteral("412.5 m  Zürich, ZH, Switzerland ")));
    QCOMPARE(lines[2].indexOf(QStringLiteral("ZH ")), lines[0].indexOf(u"Place"));
    QVERIFY(lines[1].endsWith(QStringLiteral("IMG_0001.JPG")));
    QVERIFY(lines[3].contains(QStringLiteral("failed: disk full")));
    QCOMPARE(lines[4], QStringLiteral("2 photos: 1 saved, 1 failed. 2 tracks, 900 points."));
}

QTEST_APPLESS_MAIN(ReportTest)
#include "report_test.moc"
