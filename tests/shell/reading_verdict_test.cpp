#include "outlets/quiet_bar.h"
#include "shell/reading_verdict.h"

#include <QTest>

using namespace pinmora;
using namespace std::chrono_literals;

using Minutes = QList<int>;

namespace {

std::vector<Date> instants(const Minutes &minutes) {
    std::vector<Date> dates;
    for (const int minute : minutes) {
        dates.push_back(Date{std::chrono::minutes(minute)});
    }
    return dates;
}

/// A log by the times of its points under both readings, in minutes.
struct Log {
    Minutes inForce;
    Minutes other;
    std::size_t unusableInForce = 0;
    std::size_t unusableOther = 0;
    const char *sample = "";
    LogError errorInForce = LogError::None;
};

constexpr int hour = 60;

LogReport reportOf(LogReading reading, std::size_t points, std::size_t unusable) {
    LogReport report;
    report.reading = reading;
    report.points = points;
    report.unusable = unusable;
    return report;
}

} // namespace

Q_DECLARE_METATYPE(Log)

/// When the other reading of logs is offered, and in what words.
class ReadingVerdictTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void words_data();
    void words();
    void spans_data();
    void spans();
};

void ReadingVerdictTest::words_data() {
    QTest::addColumn<bool>("tolerantInForce");
    QTest::addColumn<Minutes>("photos");
    QTest::addColumn<QList<Log>>("logs");
    QTest::addColumn<QString>("words"); // "" for no offer
    const auto row = [](const char *name, bool tolerant, Minutes photos, QList<Log> logs,
                        const char *words) {
        QTest::newRow(name) << tolerant << photos << logs << QString::fromUtf8(words);
    };
    const Log shifted{.inForce = {0, 10, 20}, .other = {2 * hour, 2 * hour + 10, 2 * hour + 20}};
    const Log back{.inForce = shifted.other, .other = shifted.inForce};
    const Log half{.inForce = {0, 20},
                   .other = {2 * hour, 2 * hour + 10, 2 * hour + 20},
                   .unusableInForce = 1,
                   .sample = "2024-05-01T10:10:00.5Z"};
    const Log talkers{.inForce = {},
                      .other = {0, 1},
                      .unusableInForce = 3,
                      .unusableOther = 1,
                      .sample = "$GNRMC,1"};
    const Log bare{.inForce = {}, .other = {0, 1}, .errorInForce = LogError::NotALog};
    const Log more{.inForce = {0}, .other = {0, 30}};

    row("nothing", false, {}, {}, "");
    row("the same", false, {0, 10}, {{.inForce = {0, 10}, .other = {0, 10}}}, "");
    row("shifted, but no photos", false, {}, {shifted}, "");
    row("shifted, and photos of neither", false, {999}, {shifted}, "");
    row("shifted away from the photos", false, {0}, {shifted}, "");
    row("shifted, photos of both alike", false, {0, 2 * hour}, {shifted}, "");
    row("universal time", false, {2 * hour, 2 * hour + 21}, {shifted},
        "1.gpx gives its times in universal time.|Read as clock time they miss your photos by 2 "
        "h.|Use Universal Time");
    row("universal time, two logs", false, {2 * hour}, {shifted, shifted},
        "1.gpx and 1 other log give their times in universal time.|Read as clock time they miss "
        "your photos by 2 h.|Use Universal Time");
    row("only one log speaks for it", false, {2 * hour}, {back, shifted}, "");
    row("the log that shows it is named", false, {2 * hour}, {more, shifted},
        "2.gpx gives its times in universal time.|Read as clock time they miss your photos by 2 "
        "h.|Use Universal Time");
    row("clock time", true, {0, 10}, {back},
        "1.gpx gives its times in clock time.|Read as universal time they miss your photos by 2 "
        "h.|Use Clock Time");
    row("times left out", false, {}, {half},
        "1 of 3 times in 1.gpx is left out by the exact reading.|The tolerant one takes them, and "
        "all times as universal time.|Read It Too");
    row("times left out, but photos fit", false, {0}, {half}, "");
    row("sentences left out", false, {}, {talkers},
        "2 sentences in 1.gpx are left out by the exact reading.|The tolerant one takes them.|Read "
        "Them Too");
    row("left out with reason", true, {}, {talkers}, "");
    row("left out, but photos fit", true, {0}, {talkers},
        "2 sentences in 1.gpx are left out by the tolerant reading.|The exact one takes them.|Read "
        "Them Too");
    row("times left out in several logs", false, {}, {half, talkers},
        "2 sentences in 2.gpx are left out by the exact reading, and some in 1 other log.|The "
        "tolerant one takes them.|Read Them Too");
    row("not read at all", false, {}, {bare},
        "1.gpx could not be read.|The exact reading makes nothing of it; the tolerant one finds 2 "
        "points in it.|Read Tolerantly");
    row("more of the photos", false, {30, 33}, {more},
        "1.gpx fits more of your photos.|With the tolerant reading, 2 more lie within 5 minutes "
        "of a point.|Read Tolerantly");
}

void ReadingVerdictTest::words() {
    QFETCH(bool, tolerantInForce);
    QFETCH(Minutes, photos);
    QFETCH(QList<Log>, logs);
    QFETCH(QString, words);
    const LogReading inForce = tolerantInForce ? LogReading::Tolerant : LogReading::Exact;
    const LogReading other = tolerantInForce ? LogReading::Exact : LogReading::Tolerant;
    std::vector<std::pair<LogTimes, LogTimes>> read;
    for (const Log &log : logs) {
        auto &[now, then] = read.emplace_back();
        now.times = instants(log.inForce);
        now.report = reportOf(inForce, now.times.size(), log.unusableInForce);
        now.report.sample = LogReport::Sample{log.sample, 1};
        now.report.error = log.errorInForce;
        then.times = instants(log.other);
        then.report = reportOf(other, then.times.size(), log.unusableOther);
    }
    std::vector<ComparedLog> compared;
    for (const auto &[now, then] : read) {
        compared.push_back({"/logs/" + std::to_string(compared.size() + 1) + ".gpx", &now, &then});
    }
    const auto verdict = judgeReadings(instants(photos), compared);
    QCOMPARE(verdict.has_value(), !words.isEmpty());
    if (verdict) {
        const BarMessage message = wordsOf(*verdict, false);
        QCOMPARE(
            QString::fromStdString(message.head + "|" + message.text + "|" + choiceOf(*verdict)),
            words);
        QCOMPARE(wordsOf(*verdict, true).text,
                 message.text + " Then check the camera clock: it is corrected by an offset.");
    }
}

void ReadingVerdictTest::spans_data() {
    QTest::addColumn<int>("seconds");
    QTest::addColumn<std::string>("text");
    QTest::newRow("minutes") << 25 * 60 << std::string("25 min");
    QTest::newRow("rounded to minutes") << 7199 << std::string("2 h");
    QTest::newRow("half hours") << 19'800 << std::string("5 h 30 min");
    QTest::newRow("a day") << 86'400 << std::string("24 h");
    QTest::newRow("days") << 3 * 86'400 + 5000 << std::string("3 days");
}

void ReadingVerdictTest::spans() {
    QFETCH(int, seconds);
    QTEST(spanText(std::chrono::seconds(seconds)), "text");
}

QTEST_APPLESS_MAIN(ReadingVerdictTest)
#include "reading_verdict_test.moc"
