#include "files.h"
#include "platform/process.h"
#include "rows.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <map>

using namespace pinmora;
using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

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

/// Runs the program itself on the sample outing, as a person would.
class TagCommandTest : public QObject {
    Q_OBJECT

    struct Run {
        int exit = -1;
        QJsonObject report;
        QString errors;

        QJsonObject photo(const QString &name) const {
            for (const QJsonValue photo : report[u"photos"].toArray()) {
                if (photo[u"file"].toString().endsWith(name)) {
                    return photo.toObject();
                }
            }
            return {};
        }
        QStringList statuses() const {
            QStringList statuses;
            for (const QJsonValue photo : report[u"photos"].toArray()) {
                statuses << photo[u"status"].toString();
            }
            statuses.removeDuplicates();
            return statuses;
        }
    };

private Q_SLOTS:
    void initTestCase() { qputenv("TZ", "UTC0"); }

    void init() {
        folder = std::make_unique<QTemporaryDir>();
        out = folder->filePath(u"out"_s);
    }

    void tagsTheSampleOuting() {
        const Run result = run({u"--offset"_s, u"0:0:40"_s, outing});
        QVERIFY2(result.exit == 0, qPrintable(result.errors));
        QCOMPARE(result.report[u"tracks"].toInt(), 3);
        QCOMPARE(result.report[u"photos"].toArray().size(), 8);
        QCOMPARE(result.statuses(), QStringList{u"saved"_s});

        // The photo of the station clock: the camera wrote 15:35:20 where the clock shows 15:36:00
        // UTC.
        const QJsonObject station = result.photo(u"IMG_0412.JPG"_s);
        QCOMPARE(station[u"taken"].toString(), u"2025-06-14T15:35:20"_s);
        QCOMPARE(station[u"corrected"].toString(), u"2025-06-14T15:36:00"_s);
        QVERIFY(station[u"seconds_apart"].toInt(99) <= 15);
        const QString copy = station[u"saved_as"].toString();
        QCOMPARE(copy, out + u"/IMG_0412.JPG"_s);
        const QList<QByteArray> position = exifTool(copy, {u"-GPSLatitude"_s, u"-GPSLongitude"_s,
                                                           u"-GPSAltitude"_s, u"-GPSMapDatum"_s})
                                               .split('\n');
        QCOMPARE(position.size(), 4);
        QVERIFY(qAbs(position[0].toDouble() - station[u"lat"].toString().toDouble()) < 1e-5);
        QVERIFY(qAbs(position[1].toDouble() - station[u"lon"].toString().toDouble()) < 1e-5);
        QCOMPARE(position[2].toDouble(), station[u"alt"].toString().toDouble());
        QCOMPARE(position[3], "WGS-84");

        const QJsonObject meadow = result.photo(u"IMG_0415.jpg"_s);
        QVERIFY(meadow[u"taken"].isNull() && meadow[u"seconds_apart"].isNull());
        QVERIFY(meadow[u"message"].toString().contains(u"no capture time"));
    }

    void leavesOriginalsAsTheyAre() {
        const auto originals = [this] {
            std::map<fs::path, std::pair<std::string, fs::file_time_type>> all;
            for (const auto &entry : fs::directory_iterator(outing.toStdString())) {
                all[entry.path()] = {test::contents(entry.path()), entry.last_write_time()};
            }
            return all;
        };
        const auto before = originals();
        QCOMPARE(run({outing}).exit, 0);
        QVERIFY(originals() == before);
    }

    void aDryRunSavesNothing() {
        const Run result = run({u"--dry-run"_s, outing});
        QCOMPARE(result.exit, 0);
        QCOMPARE(result.statuses(), QStringList{u"matched"_s});
        QVERIFY(!QFileInfo::exists(out));
        out.clear(); // as without a folder: nothing says where to
        QCOMPARE(run({u"--dry-run"_s, outing}).report, result.report);
    }

    void writesThePlacesOfNewPositions() {
        const QString photo = outing + u"/IMG_0412.JPG"_s;
        const QString log = outing + u"/zugerberg.gpx"_s;
        const QStringList tags{u"-City"_s, u"-Country-PrimaryLocationName"_s};
        const Run result = run({log, photo});
        QVERIFY2(result.exit == 0, qPrintable(result.errors));
        const QJsonObject tagged = result.photo(photo);
        QCOMPARE(tagged[u"city"].toString(), u"Zug"_s);
        QCOMPARE(tagged[u"prov"].toString(), u"Zug"_s);
        QCOMPARE(tagged[u"country"].toString(), u"Switzerland"_s);
        QCOMPARE(exifTool(tagged[u"saved_as"].toString(), tags), "Zug\nSwitzerland");

        // Positions that photos come with are not looked up.
        const QString placed = folder->filePath(u"placed.jpg"_s);
        QVERIFY(QFile::copy(outing + u"/IMG_0371.JPG"_s, placed));
        exifTool(placed, {u"-overwrite_original"_s, u"-City="_s});
        const QJsonObject untouched = run({placed}).photo(placed);
        QVERIFY(!untouched[u"lat"].toString().isEmpty());
        QCOMPARE(untouched[u"city"], QJsonValue(QString()));
    }

    void looksNoPlacesUp_data() {
        const auto row = test::rows<QStringList, QByteArray>();
        row("told so", {u"--no-places"_s}, {});
        row("set so", {}, "lookUpPlaces=0");
        row("at a service that is not there", {}, "placeServer=http://127.0.0.1:9");
    }

    void looksNoPlacesUp() {
        auto [options, settings] = test::fetch<QStringList, QByteArray>();
        const Run result = runWith(settings, options << u"--dry-run"_s << outing);
        QCOMPARE(result.statuses(), QStringList{u"matched"_s});
        QCOMPARE(result.photo(u"IMG_0412.JPG"_s)[u"city"], QJsonValue(QString()));
    }

    void takesMoreTypesWhereTheWindowDoes() {
        const QString photo = folder->filePath(u"phone.Jpg"_s);
        QVERIFY(QFile::copy(outing + u"/IMG_0412.JPG"_s, photo));
        QVERIFY(run({photo}).statuses().isEmpty());
        QCOMPARE(runWith("morePhotoTypes=1", {photo}).statuses(), QStringList{u"saved"_s});
    }

    void withoutLogsPhotosAreSavedAsTheyAre() {
        const QString placed = outing + u"/IMG_0371.JPG"_s;
        const Run result = run({placed, outing + u"/IMG_0412.JPG"_s});
        QVERIFY(result.errors.contains(u"no GPS log"));
        QCOMPARE(result.exit, 0);
        QCOMPARE(result.statuses(), QStringList{u"saved"_s});
        QCOMPARE(result.photo(placed)[u"lat"].toString().left(3), u"-49"_s);
        QCOMPARE(result.photo(u"IMG_0412.JPG"_s)[u"lat"], QJsonValue(QString()));
        QVERIFY(exifTool(out + u"/IMG_0371.JPG"_s, {u"-GPSPosition"_s}).startsWith("-49"));
    }

    void anEmptyLogLeavesPhotosUnmatched() {
        const QString log = write(u"a.gpx"_s, "<?xml version=\"1.0\"?><gpx></gpx>");
        const Run result = run({u"--gps"_s, log, outing + u"/IMG_0412.JPG"_s});
        QCOMPARE(result.exit, 1);
        QCOMPARE(result.statuses(), QStringList{u"unmatched"_s});
        QVERIFY(QFileInfo::exists(out + u"/IMG_0412.JPG"_s));
    }

    void readsTolerantOnlyWhereExactPlacesNothing() {
        const QString photo = outing + u"/IMG_0412.JPG"_s;
        const QString log = write(u"phone.gpx"_s, tolerantGpx);
        const QStringList tagged{u"--offset"_s, u"0:0:40"_s, photo, log};
        const Run automatic = run(tagged);
        QVERIFY2(automatic.exit == 0, qPrintable(automatic.errors));
        QVERIFY(automatic.errors.contains(u"tolerant"));
        QCOMPARE(automatic.photo(photo)[u"lat"].toString(), u"47.17"_s);

        const Run exact = run(QStringList{u"--logs=exact"_s} + tagged);
        QCOMPARE(exact.exit, 1);
        QCOMPARE(exact.statuses(), QStringList{u"unmatched"_s});

        const Run both = run(QStringList{outing + u"/zugerberg.gpx"_s} + tagged);
        QVERIFY(!both.errors.contains(u"tolerant"));
        QVERIFY(both.photo(photo)[u"lat"].toString() != u"47.17"_s);
    }

    /// A photo near the wrong point by accident keeps the exact reading, but not without a word.
    void saysWhereTolerantWouldPlaceMore() {
        QByteArray points = "<?xml version=\"1.0\"?>" + tolerantGpx;
        points.replace("</trkseg>", "<trkpt lat=\"47.2\" lon=\"8.6\"><time>2025-06-14T17:37:00Z"
                                    "</time></trkpt></trkseg>");
        const QStringList tagged{write(u"phone.gpx"_s, points), outing + u"/IMG_0412.JPG"_s,
                                 outing + u"/IMG_0416.JPG"_s, u"--dry-run"_s};
        const Run automatic = run(tagged);
        QVERIFY2(automatic.errors.contains(
                     u"places 1 of 2 photos within 5 minutes of a point; --logs tolerant would "
                     "place 2"_s),
                 qPrintable(automatic.errors));
        QCOMPARE(automatic.exit, 0);
        QCOMPARE(automatic.photo(u"0412.JPG"_s)[u"lat"].toString(), u"47.2"_s);
        const Run tolerant = run(QStringList{u"--logs=tolerant"_s} + tagged);
        QCOMPARE(tolerant.photo(u"0412.JPG"_s)[u"lat"].toString(), u"47.17"_s);
        QVERIFY(!tolerant.errors.contains(u"--logs"_s));
    }

    void renamesInOrderOfTime() {
        QStringList arguments{u"--name"_s, u"trip"_s};
        for (const QString &number : {u"0418"_s, u"0412"_s, u"0416"_s}) {
            arguments << outing + u"/IMG_"_s + number + u".JPG"_s;
        }
        const Run result = run(arguments);
        QCOMPARE(result.exit, 0);
        int place = 0;
        for (const QString &name : {u"0412.JPG"_s, u"0416.JPG"_s, u"0418.JPG"_s}) {
            QCOMPARE(result.photo(name)[u"saved_as"].toString(),
                     out + u"/trip_%1.JPG"_s.arg(++place));
        }
    }

    void saysWhatCouldNotBeUsed() {
        const QString missing = folder->filePath(u"missing.jpg"_s);
        const QString broken = write(u"broken.jpg"_s, "");
        const QString cut = write(u"cut.gpx"_s, "<?xml version=\"1.0\"?><gpx><trk>");
        const Run result = run({missing, broken, cut, outing + u"/IMG_0412.JPG"_s});
        QCOMPARE(result.exit, 1);
        QCOMPARE(result.report[u"photos"].toArray().size(), 1);
        for (const QString &path : {missing, broken, cut}) {
            QVERIFY2(result.errors.contains(path), qPrintable(path));
        }
        QVERIFY(result.errors.contains(u"There was an error parsing the GPX file."));
    }

    void copiesNothingWithoutTheTool() {
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", folder->path().toUtf8());
        const Run result = run({outing});
        qputenv("PATH", path);
        QCOMPARE(result.exit, 1);
        QCOMPARE(result.statuses(), QStringList{u"failed"_s});
        QVERIFY(result.errors.contains(u"exiftool", Qt::CaseInsensitive));
        QVERIFY(QDir(out).isEmpty());
    }

private:
    Run run(const QStringList &arguments) {
        const ProcessOutcome outcome = runProcess(
            PINMORA_TAG, bytesOf(QStringList(arguments) << u"--json"_s << u"--out"_s << out));
        return {outcome.end == ProcessOutcome::End::Exited ? outcome.code : -1,
                QJsonDocument::fromJson(QByteArray::fromStdString(outcome.output)).object(),
                QString::fromStdString(outcome.errors)};
    }

    Run runWith(const QByteArray &settings, const QStringList &arguments) {
        const QByteArray config = qgetenv("XDG_CONFIG_HOME");
        QDir(folder->path()).mkdir(u"Pinmora"_s);
        write(u"Pinmora/Pinmora.ini"_s, "[General]\n" + settings + '\n');
        qputenv("XDG_CONFIG_HOME", folder->path().toUtf8());
        Run result = run(arguments);
        qputenv("XDG_CONFIG_HOME", config);
        return result;
    }

    QString write(const QString &name, const QByteArray &bytes) {
        const auto file = test::put(folder->filePath(name).toStdString(), bytes.toStdString());
        return QString::fromStdString(file.string());
    }

    QByteArray exifTool(const QString &file, const QStringList &tags) {
        const auto tool = findOnPath("exiftool");
        const ProcessOutcome outcome =
            runProcess(tool.value(), bytesOf(QStringList{u"-n"_s, u"-s3"_s} << tags << file));
        return QByteArray::fromStdString(outcome.output).trimmed();
    }

    const QString outing = QStringLiteral(PINMORA_SOURCE_DIR "/samples/outing");
    std::unique_ptr<QTemporaryDir> folder;
    QString out;
};

QTEST_APPLESS_MAIN(TagCommandTest)
#include "tag_command_test.moc"
