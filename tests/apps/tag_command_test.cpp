#include "platform/process.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

using namespace pinmora;

/// Runs the program itself on the sample outing, as a person would.
class TagCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void tagsTheSampleOuting();
    void leavesOriginalsAsTheyAre();
    void aDryRunSavesNothing();
    void writesThePlacesOfNewPositions();
    void looksNoPlacesUp_data();
    void looksNoPlacesUp();
    void withoutLogsPhotosAreSavedAsTheyAre();
    void anEmptyLogLeavesPhotosUnmatched();
    void readsTolerantOnlyWhereExactPlacesNothing();
    void renamesInOrderOfTime();
    void saysWhatCouldNotBeUsed();
    void copiesNothingWithoutTheTool();

private:
    struct Run {
        int exit = -1;
        QJsonObject report;
        QString errors;

        QJsonObject photo(const QString &name) const;
        QStringList statuses() const;
    };
    Run run(const QStringList &arguments);
    QString write(const QString &name, const QByteArray &bytes);
    QByteArray exifTool(const QString &file, const QStringList &tags);

    const QString outing = QStringLiteral(PINMORA_SOURCE_DIR "/samples/outing");
    std::unique_ptr<QTemporaryDir> folder;
    QString out;
};

namespace {

std::vector<std::string> bytesOf(const QStringList &texts) {
    std::vector<std::string> bytes;
    for (const QString &text : texts) {
        bytes.push_back(text.toStdString());
    }
    return bytes;
}

/// One point at 17:36 universal time on the day of the outing, in a time form that only the
/// tolerant reading takes.
const QByteArray tolerantGpx =
    "<gpx><trk><trkseg><trkpt lat=\"47.17\" lon=\"8.51\"><time>2025-06-14T15:36:00.5Z</time>"
    "</trkpt></trkseg></trk></gpx>";

} // namespace

void TagCommandTest::initTestCase() {
    qputenv("TZ", "UTC0");
}

void TagCommandTest::init() {
    folder = std::make_unique<QTemporaryDir>();
    out = folder->filePath(QStringLiteral("out"));
}

TagCommandTest::Run TagCommandTest::run(const QStringList &arguments) {
    const ProcessOutcome outcome =
        runProcess(PINMORA_TAG, bytesOf(QStringList(arguments) << QStringLiteral("--json")
                                                               << QStringLiteral("--out") << out));
    return {outcome.end == ProcessOutcome::End::Exited ? outcome.code : -1,
            QJsonDocument::fromJson(QByteArray::fromStdString(outcome.output)).object(),
            QString::fromStdString(outcome.errors)};
}

QJsonObject TagCommandTest::Run::photo(const QString &name) const {
    for (const QJsonValue photo : report[u"photos"].toArray()) {
        if (photo[u"file"].toString().endsWith(name)) {
            return photo.toObject();
        }
    }
    return {};
}

QStringList TagCommandTest::Run::statuses() const {
    QStringList statuses;
    for (const QJsonValue photo : report[u"photos"].toArray()) {
        statuses << photo[u"status"].toString();
    }
    statuses.removeDuplicates();
    return statuses;
}

QString TagCommandTest::write(const QString &name, const QByteArray &bytes) {
    QFile file(folder->filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(name));
    }
    return file.fileName();
}

QByteArray TagCommandTest::exifTool(const QString &file, const QStringList &tags) {
    const auto tool = findOnPath("exiftool");
    const ProcessOutcome outcome =
        runProcess(tool.value(), bytesOf(QStringList{QStringLiteral("-n"), QStringLiteral("-s3")}
                                         << tags << file));
    return QByteArray::fromStdString(outcome.output).trimmed();
}

void TagCommandTest::tagsTheSampleOuting() {
    const Run result = run({QStringLiteral("--offset"), QStringLiteral("0:0:40"), outing});
    QVERIFY2(result.exit == 0, qPrintable(result.errors));
    QCOMPARE(result.report[u"tracks"].toInt(), 3);
    QCOMPARE(result.report[u"photos"].toArray().size(), 8);
    QCOMPARE(result.statuses(), QStringList{QStringLiteral("saved")});

    // The photo of the station clock: the camera wrote 15:35:20 where the clock shows 15:36:00 UTC.
    const QJsonObject station = result.photo(QStringLiteral("IMG_0412.JPG"));
    QCOMPARE(station[u"taken"].toString(), QStringLiteral("2025-06-14T15:35:20"));
    QCOMPARE(station[u"corrected"].toString(), QStringLiteral("2025-06-14T15:36:00"));
    QVERIFY(station[u"seconds_apart"].toInt(99) <= 15);
    const QString copy = station[u"saved_as"].toString();
    QCOMPARE(copy, out + QStringLiteral("/IMG_0412.JPG"));
    const QList<QByteArray> position =
        exifTool(copy, {QStringLiteral("-GPSLatitude"), QStringLiteral("-GPSLongitude"),
                        QStringLiteral("-GPSAltitude"), QStringLiteral("-GPSMapDatum")})
            .split('\n');
    QCOMPARE(position.size(), 4);
    QVERIFY(qAbs(position[0].toDouble() - station[u"lat"].toString().toDouble()) < 1e-5);
    QVERIFY(qAbs(position[1].toDouble() - station[u"lon"].toString().toDouble()) < 1e-5);
    QCOMPARE(position[2].toDouble(), station[u"alt"].toString().toDouble());
    QCOMPARE(position[3], QByteArray("WGS-84"));

    const QJsonObject meadow = result.photo(QStringLiteral("IMG_0415.jpg"));
    QVERIFY(meadow[u"taken"].isNull() && meadow[u"seconds_apart"].isNull());
    QVERIFY(meadow[u"message"].toString().contains(u"no capture time"));
}

void TagCommandTest::leavesOriginalsAsTheyAre() {
    const auto checksums = [this] {
        QStringList sums;
        for (const QFileInfo &info : QDir(outing).entryInfoList(QDir::Files)) {
            QFile file(info.filePath());
            QCryptographicHash hash(QCryptographicHash::Sha256);
            if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file)) {
                qFatal("cannot read %s", qPrintable(info.filePath()));
            }
            sums << QString::fromLatin1(hash.result().toHex()) +
                        info.lastModified().toString(Qt::ISODateWithMs);
        }
        return sums;
    };
    const QStringList before = checksums();
    QCOMPARE(run({outing}).exit, 0);
    QCOMPARE(checksums(), before);
}

void TagCommandTest::aDryRunSavesNothing() {
    const Run result = run({QStringLiteral("--dry-run"), outing});
    QCOMPARE(result.exit, 0);
    QCOMPARE(result.statuses(), QStringList{QStringLiteral("matched")});
    QVERIFY(!QFileInfo::exists(out));
}

void TagCommandTest::writesThePlacesOfNewPositions() {
    const QString photo = outing + QStringLiteral("/IMG_0412.JPG");
    const QString log = outing + QStringLiteral("/zugerberg.gpx");
    const QStringList tags{QStringLiteral("-City"), QStringLiteral("-Country-PrimaryLocationName")};
    const Run result = run({log, photo});
    QVERIFY2(result.exit == 0, qPrintable(result.errors));
    const QJsonObject tagged = result.photo(photo);
    QCOMPARE(tagged[u"city"].toString(), QStringLiteral("Zug"));
    QCOMPARE(tagged[u"prov"].toString(), QStringLiteral("Zug"));
    QCOMPARE(tagged[u"country"].toString(), QStringLiteral("Switzerland"));
    QCOMPARE(exifTool(tagged[u"saved_as"].toString(), tags), QByteArray("Zug\nSwitzerland"));

    // Positions that photos come with are not looked up.
    const QString placed = folder->filePath(QStringLiteral("placed.jpg"));
    QVERIFY(QFile::copy(outing + QStringLiteral("/IMG_0371.JPG"), placed));
    exifTool(placed, {QStringLiteral("-overwrite_original"), QStringLiteral("-City=")});
    const QJsonObject untouched = run({placed}).photo(placed);
    QVERIFY(!untouched[u"lat"].toString().isEmpty());
    QCOMPARE(untouched[u"city"], QJsonValue(QString()));
}

void TagCommandTest::looksNoPlacesUp_data() {
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("settings");
    QTest::newRow("told so") << QStringList{QStringLiteral("--no-places")} << QByteArray();
    QTest::newRow("set so") << QStringList() << QByteArray("lookUpPlaces=0");
    QTest::newRow("at a service that is not there")
        << QStringList() << QByteArray("placeServer=http://127.0.0.1:9");
}

void TagCommandTest::looksNoPlacesUp() {
    QFETCH(QStringList, options);
    QFETCH(QByteArray, settings);
    const QByteArray config = qgetenv("XDG_CONFIG_HOME");
    QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("Pinmora")));
    write(QStringLiteral("Pinmora/Pinmora.ini"), "[General]\n" + settings + '\n');
    qputenv("XDG_CONFIG_HOME", folder->path().toUtf8());
    const Run result = run(options << QStringLiteral("--dry-run") << outing);
    qputenv("XDG_CONFIG_HOME", config);
    QCOMPARE(result.statuses(), QStringList{QStringLiteral("matched")});
    QCOMPARE(result.photo(QStringLiteral("IMG_0412.JPG"))[u"city"], QJsonValue(QString()));
}

void TagCommandTest::withoutLogsPhotosAreSavedAsTheyAre() {
    const QString placed = outing + QStringLiteral("/IMG_0371.JPG");
    const Run result = run({placed, outing + QStringLiteral("/IMG_0412.JPG")});
    QCOMPARE(result.exit, 0);
    QCOMPARE(result.statuses(), QStringList{QStringLiteral("saved")});
    QCOMPARE(result.photo(placed)[u"lat"].toString().left(3), QStringLiteral("-49"));
    QCOMPARE(result.photo(QStringLiteral("IMG_0412.JPG"))[u"lat"], QJsonValue(QString()));
    QVERIFY(exifTool(out + QStringLiteral("/IMG_0371.JPG"), {QStringLiteral("-GPSPosition")})
                .startsWith("-49"));
}

void TagCommandTest::anEmptyLogLeavesPhotosUnmatched() {
    const QString log = write(QStringLiteral("a.gpx"), "<?xml version=\"1.0\"?><gpx></gpx>");
    const Run result =
        run({QStringLiteral("--gps"), log, outing + QStringLiteral("/IMG_0412.JPG")});
    QCOMPARE(result.exit, 1);
    QCOMPARE(result.statuses(), QStringList{QStringLiteral("unmatched")});
    QVERIFY(QFileInfo::exists(out + QStringLiteral("/IMG_0412.JPG")));
}

void TagCommandTest::readsTolerantOnlyWhereExactPlacesNothing() {
    const QString photo = outing + QStringLiteral("/IMG_0412.JPG");
    const QString log = write(QStringLiteral("phone.gpx"), tolerantGpx);
    const QStringList tagged{QStringLiteral("--offset"), QStringLiteral("0:0:40"), photo, log};
    const Run automatic = run(tagged);
    QVERIFY2(automatic.exit == 0, qPrintable(automatic.errors));
    QVERIFY(automatic.errors.contains(u"tolerant"));
    QCOMPARE(automatic.photo(photo)[u"lat"].toString(), QStringLiteral("47.17"));

    const Run exact = run(QStringList{QStringLiteral("--logs=exact")} + tagged);
    QCOMPARE(exact.exit, 1);
    QCOMPARE(exact.statuses(), QStringList{QStringLiteral("unmatched")});

    const Run both = run(QStringList{outing + QStringLiteral("/zugerberg.gpx")} + tagged);
    QVERIFY(!both.errors.contains(u"tolerant"));
    QVERIFY(both.photo(photo)[u"lat"].toString() != QStringLiteral("47.17"));
}

void TagCommandTest::renamesInOrderOfTime() {
    const Run result = run(
        {QStringLiteral("--name"), QStringLiteral("trip"), outing + QStringLiteral("/IMG_0418.JPG"),
         outing + QStringLiteral("/IMG_0412.JPG"), outing + QStringLiteral("/IMG_0416.JPG")});
    QCOMPARE(result.exit, 0);
    QCOMPARE(QFileInfo(result.photo(QStringLiteral("0412.JPG"))[u"saved_as"].toString()).fileName(),
             QStringLiteral("trip_1.JPG"));
    QCOMPARE(QFileInfo(result.photo(QStringLiteral("0416.JPG"))[u"saved_as"].toString()).fileName(),
             QStringLiteral("trip_2.JPG"));
    QCOMPARE(QFileInfo(result.photo(QStringLiteral("0418.JPG"))[u"saved_as"].toString()).fileName(),
             QStringLiteral("trip_3.JPG"));
}

void TagCommandTest::saysWhatCouldNotBeUsed() {
    const QString missing = folder->filePath(QStringLiteral("missing.jpg"));
    const QString broken = write(QStringLiteral("broken.jpg"), "");
    const QString cut = write(QStringLiteral("cut.gpx"), "<?xml version=\"1.0\"?><gpx><trk>");
    const Run result = run({missing, broken, cut, outing + QStringLiteral("/IMG_0412.JPG")});
    QCOMPARE(result.exit, 1);
    QCOMPARE(result.report[u"photos"].toArray().size(), 1);
    for (const QString &path : {missing, broken, cut}) {
        QVERIFY2(result.errors.contains(path), qPrintable(path));
    }
    QVERIFY(result.errors.contains(u"There was an error parsing the GPX file."));
}

void TagCommandTest::copiesNothingWithoutTheTool() {
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder->path().toUtf8());
    const Run result = run({outing});
    qputenv("PATH", path);
    QCOMPARE(result.exit, 1);
    QCOMPARE(result.statuses(), QStringList{QStringLiteral("failed")});
    QVERIFY(result.errors.contains(u"exiftool", Qt::CaseInsensitive));
    QVERIFY(QDir(out).isEmpty());
}

QTEST_APPLESS_MAIN(TagCommandTest)
#include "tag_command_test.moc"
