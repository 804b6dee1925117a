#include "persistence/context.h"
#include "photos/photo_files.h"
#include "photos/photos.h"
#include "store/image.h"
#include "store/library_model.h"

#include <QTemporaryDir>
#include <QTest>
#include <fstream>

using namespace pinmora;

namespace {

struct CountingLookup : PlaceNameLookup {
    void lookUp(image &) override { ++count; }
    int count = 0;
};

Tags position(const char *latRef, const char *lat, const char *lonRef, const char *lon) {
    Tags tags;
    const auto add = [&tags](const char *key, const char *value) {
        if (*value) {
            tags.emplace_back(std::string("Exif.GPSInfo.GPS") + key, value);
        }
    };
    add("LatitudeRef", latRef);
    add("Latitude", lat);
    add("LongitudeRef", lonRef);
    add("Longitude", lon);
    return tags;
}

const Tags fullTags{
    {"Exif.Image.Make", "Larch "},
    {"Exif.Image.Model", "Field 20"},
    {"Exif.Photo.BodySerialNumber", " L20-7"},
    {"Exif.Photo.OffsetTimeOriginal", "+02:00"},
    {"Exif.Image.ImageDescription", "Harbour"},
    {"Exif.Photo.UserComment", "charset=Ascii windy"},
    {"Exif.Photo.DateTimeOriginal", "2008:06:21 14:03:59"},
    {"Exif.GPSInfo.GPSLatitudeRef", "S"},
    {"Exif.GPSInfo.GPSLatitude", "33/1 52/1 3/1"},
    {"Exif.GPSInfo.GPSLongitudeRef", "E"},
    {"Exif.GPSInfo.GPSLongitude", "151/1 1242/100 0/1"},
    {"Exif.GPSInfo.GPSAltitudeRef", "1"},
    {"Exif.GPSInfo.GPSAltitude", "25/2"},
    {"Iptc.Application2.City", "Sydney"},
    {"Iptc.Application2.ProvinceState", "New South Wales"},
    {"Iptc.Application2.CountryName", "Australia"},
};

} // namespace

Q_DECLARE_METATYPE(Tags)

/// How a photo's metadata fills its record.
class RecordTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        qputenv("TZ", "AEST-10");
        tzset();
    }
    void values_data();
    void values();
    void noCaptureTimeMeansNow_data();
    void noCaptureTimeMeansNow();
    void fillingIsQuiet();
    void newNamesCanBeTypedOnceAPhotoIsThere();
    void headerNumbers();

private:
    std::string folder() const { return folder_.path().toStdString(); }
    image *load(const std::string &name, const Tags &tags) {
        writePhoto(folder() + "/" + name, tags);
        photos_.makePictEntry(name, folder());
        const std::vector<image *> records = context_.fetch<image>();
        return records.empty() ? nullptr : records.back();
    }

    QTemporaryDir folder_;
    NotificationCentre notifications_;
    LibraryModel model_{notifications_};
    Context context_{model_};
    NotingLogs logs_;
    PhotoTypes types_;
    Photos photos_{context_, logs_, types_};
};

void RecordTest::values_data() {
    QTest::addColumn<Tags>("tags");
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QByteArray>("expected"); // in the order of the keys; "none" for no value
    const auto row = [](const char *name, const Tags &tags, const char *keys,
                        const char *expected) {
        QTest::newRow(name) << tags << QByteArray(keys) << QByteArray(expected);
    };
    const char *place = "lat lon lat_ref lon_ref position_source";
    row("full.jpg", fullTags, place, "-33.8675|+151.207|S|E|file");
    row("texts.jpg", fullTags, "comments img_description city prov country alt camera",
        "windy|Harbour|Sydney|New South Wales|Australia|-12.5|Larch, Field 20, L20-7");
    row("time.jpg", fullTags, "time_string no_capture_time offset_time_original",
        "21 Jun 2008 14:03:59|0|+02:00");
    row("bare.jpg", {}, "lat lon lat_ref lon_ref alt city prov country comments img_description",
        "|||||||||");
    row("bare2.jpg", {}, "map_datum camera position_source zoom valid_file",
        "WGS-84||none|none|none");
    row("north west.jpg", position("N", "47/1 2295/100", "W", "8/1 30/1"), place,
        "+47.3825|-8.5|N|W|file");
    row("no letter.jpg", position("", "47/1", "E", "8/1"), place, "|+8||E|none");
    row("small letters.jpg", position("n", "47/1", "e", "8/1"), place, "||n|e|none");
    row("letters alone.jpg", position("N", "", "W", ""), place, "||N|W|none");
    row("swapped letters.jpg", position("E", "47/1", "N", "8/1"), place, "||E|N|none");
    row("file's letters.jpg", position("S", "0/1", "W", "0/1"), place, "-0|-0|S|W|file");
    row("a.b.c.JPG", {}, "image_name original_name extension", "a|a|JPG");
    row("model only.jpg", {{"Exif.Image.Make", "  "}, {"Exif.Image.Model", "F20"}}, "camera",
        "F20");
    row("other date.jpg", {{"Exif.Photo.DateTimeOriginal", "21/06/2008"}}, "date no_capture_time",
        "none|0");
    row("blank date.jpg", {{"Exif.Photo.DateTimeOriginal", "    :  :     :  :  "}},
        "date no_capture_time", "none|0");
}

void RecordTest::values() {
    QFETCH(Tags, tags);
    QFETCH(QByteArray, keys);
    const std::string name = QTest::currentDataTag();
    const image *photo = load(name, tags);
    QVERIFY(photo);
    QByteArrayList found;
    for (const QByteArray &key : keys.split(' ')) {
        const Value value = photo->valueForKey(key.toStdString());
        found << (value.hasValue() ? QByteArray::fromStdString(value.toText().string()) : "none");
    }
    QTEST(found.join('|'), "expected");
    QCOMPARE(photo->file_size(),
             std::optional(static_cast<double>(std::filesystem::file_size(folder() + "/" + name))));
    QCOMPARE(photo->file_path().string(), folder());
    QCOMPARE(photo->full_file_path().string(), folder() + "/" + name);
}

void RecordTest::noCaptureTimeMeansNow_data() {
    QTest::addColumn<Tags>("tags");
    QTest::newRow("no Exif block") << Tags{};
    QTest::newRow("other Exif") << Tags{{"Exif.Image.DateTime", "2008:06:21 14:03:59"}};
    QTest::newRow("empty") << Tags{{"Exif.Photo.DateTimeOriginal", ""}};
}

void RecordTest::noCaptureTimeMeansNow() {
    QFETCH(Tags, tags);
    const auto before =
        std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
    const image *photo = load("undated.jpg", tags);
    QVERIFY(photo->date() >= before);
    QVERIFY(photo->date() <= std::chrono::system_clock::now());
    QCOMPARE(photo->no_capture_time(), std::optional(true));
}

void RecordTest::fillingIsQuiet() {
    CountingLookup lookup;
    model_.setPlaceNames(&lookup);
    int posted = 0;
    const auto observation =
        notifications_.addObserver(locationChange, [&posted](const Notification &) { ++posted; });
    int commits = 0;
    bool unfinished = false;
    context_.setEndEditing([&] {
        ++commits;
        const image *filled = context_.fetch<image>().back();
        unfinished = filled->loading() || filled->getHasChanges();
        return false; // a refusal keeps the photo all the same
    });

    image *photo = load("quiet.jpg", fullTags);
    QVERIFY(photo->lat_and_lon());
    QCOMPARE(posted + lookup.count, 0);
    QVERIFY(!photo->getHasChanges());
    QCOMPARE(commits, 1);
    QVERIFY(!unfinished);

    photo->setLat("-33.9");
    QCOMPARE(posted, 1);
    QCOMPARE(lookup.count, 1);
    QVERIFY(photo->getHasChanges());
    model_.setPlaceNames(nullptr);
    context_.setEndEditing({});
}

void RecordTest::newNamesCanBeTypedOnceAPhotoIsThere() {
    photos_.newFileName.enabled.set(false);
    photos_.newFileName2.enabled.set(false);
    std::ofstream(folder() + "/text.jpg") << "no picture";
    photos_.makePictEntry("text.jpg", folder());
    photos_.makePictEntry(".hidden.jpg", folder());
    QVERIFY(!photos_.newFileName.enabled.get() && !photos_.newFileName2.enabled.get());
    load("picture.jpg", {});
    QVERIFY(photos_.newFileName.enabled.get() && photos_.newFileName2.enabled.get());
}

void RecordTest::headerNumbers() {
    PropertyDictionary top;
    QCOMPARE(photos_.orientation(top), 0);
    QCOMPARE(photos_.sizeHeight(top) + photos_.sizeWidth(top), 0.0F);
    QCOMPARE(photos_.dpiHeight(top), 72.0F);
    QCOMPARE(photos_.dpiWidth(top), 72.0F);
    top.set("Orientation", 6.0);
    top.set("PixelHeight", 3000.0);
    top.set("PixelWidth", 4000.0);
    top.set("DPIHeight", 300.0);
    top.set("DPIWidth", 0.0);
    QCOMPARE(photos_.orientation(top), 6);
    QCOMPARE(photos_.sizeHeight(top), 3000.0F);
    QCOMPARE(photos_.sizeWidth(top), 4000.0F);
    QCOMPARE(photos_.dpiHeight(top), 300.0F);
    QCOMPARE(photos_.dpiWidth(top), 72.0F);

    load("small.jpg", {{"Exif.Image.Orientation", "8"}});
    const auto read = photos_.getPictDicts(folder() + "/small.jpg");
    QCOMPARE(photos_.sizeWidth(read->top), 4.0F);
    QCOMPARE(photos_.sizeHeight(read->top), 3.0F);
    QCOMPARE(photos_.orientation(read->top), 8);
    QVERIFY(!photos_.getPictDicts(folder() + "/gone.jpg"));
}

QTEST_GUILESS_MAIN(RecordTest)
#include "record_test.moc"
