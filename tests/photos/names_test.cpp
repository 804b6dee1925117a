#include "photos/file_names.h"
#include "photos/photo_types.h"

#include <QTest>
#include <algorithm>

using namespace pinmora;

/// What is said of a file by its name alone.
class NamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pictures_data();
    void pictures();
    void typesAreListedInBothCases();
    void moreTypes_data();
    void moreTypes();
    void absolutePaths_data();
    void absolutePaths();
    void listsAreOrderedForPeople();
};

void NamesTest::pictures_data() {
    QTest::addColumn<std::string>("path");
    QTest::addColumn<std::string>("extension");
    QTest::addColumn<bool>("picture");
    const auto row = [](const char *path, const char *extension, bool picture) {
        QTest::newRow(*path ? path : "empty")
            << std::string(path) << std::string(extension) << picture;
    };
    row("a.jpg", "jpg", true);
    row("b.JPG", "JPG", true);
    row("c.Jpg", "Jpg", false);
    row("a.b.tiff", "tiff", true);
    row("/photos/x.y/a.NEF", "NEF", true);
    row("/photos/.a.jpg", "jpg", true); // hidden shows in the bare name only
    row(".a.jpg", "jpg", false);
    row(".jpg", "jpg", false);
    row("jpg", "", false);
    row("a.", "", false);
    row("/photos.jpg/a", "", false);
    row("a.jpg ", "jpg ", false);
    row("a.png", "png", false);
    row("", "", false);
}

void NamesTest::pictures() {
    QFETCH(std::string, path);
    QTEST(std::string(pathExtension(path)), "extension");
    QTEST(PhotoTypes().isPict(path), "picture");
}

void NamesTest::typesAreListedInBothCases() {
    const PhotoTypes photoTypes;
    const auto &types = photoTypes.imageTypes();
    const auto &imageSupportDict = photoTypes.imageSupportDict();
    QCOMPARE(types.size(), 55U);
    QCOMPARE(imageSupportDict.size(), 54U);
    QCOMPARE(std::count(types.begin(), types.end(), "MRW"), 2);
    QCOMPARE(types.front(), "ps");
    QCOMPARE(types[53], "MEF");
    for (const char *type : {"epsi", "CR2", "icns", "JPEG", "fax", "TIF", "jpe", "PEF", "mrw"}) {
        QVERIFY2(imageSupportDict.contains(type), type);
    }
}

void NamesTest::moreTypes_data() {
    QTest::addColumn<std::string>("path");
    QTest::addColumn<bool>("more"); // and a photo only if those count
    const auto row = [](const char *path, bool more) {
        QTest::newRow(path) << std::string(path) << more;
    };
    row("/photos/a.heic", true);
    row("a.HEIC", true);
    row("a.CR3", true);
    row("a.WebP", true);
    row("c.Jpg", true);
    row("c.jPEG", true);
    row("a.jpg", false);
    row("a.MRW", false);
    row(".a.heic", false);
    row("a.mov", false);
    row("a.heics", false);
    row("a.", false);
    row("heic", false);
}

void NamesTest::moreTypes() {
    QFETCH(std::string, path);
    QFETCH(bool, more);
    PhotoTypes types;
    const bool before = types.isPict(path);
    QCOMPARE(types.isMore(path), more);
    types.setMorePhotoTypes(true);
    QCOMPARE(types.isMore(path), more);
    QCOMPARE(types.isPict(path), before || more);
    const std::vector<std::string> offered = types.panelTypes();
    QCOMPARE(std::count(offered.begin(), offered.end(), std::string(pathExtension(path))),
             path.starts_with('.') || before || more ? 1 : 0);
}

void NamesTest::absolutePaths_data() {
    QTest::addColumn<std::string>("path");
    QTest::addColumn<std::string>("absolute");
    QTest::addColumn<std::string>("folder");
    QTest::addColumn<std::string>("name");
    const auto row = [](const char *path, const char *absolute, const char *folder,
                        const char *name) {
        QTest::newRow(path) << std::string(path) << std::string(absolute) << std::string(folder)
                            << std::string(name);
    };
    row("/a/b/c.jpg", "/a/b/c.jpg", "/a/b", "c.jpg");
    row("/c.jpg", "/c.jpg", "/", "c.jpg");
    row("//a//b/./c.jpg/", "/a/b/c.jpg", "/a/b", "c.jpg");
    row("/link/../c.jpg", "/link/../c.jpg", "/link/..", "c.jpg");
    row("c.jpg", "/tmp/c.jpg", "/tmp", "c.jpg");
    row("./b/c.jpg", "/tmp/b/c.jpg", "/tmp/b", "c.jpg");
    row(".", "/tmp", "/", "tmp");
    row("/", "/", "/", "");
    row("/\xff/\xe9.jpg", "/\xff/\xe9.jpg", "/\xff", "\xe9.jpg");
}

void NamesTest::absolutePaths() {
    QFETCH(std::string, path);
    std::filesystem::current_path("/tmp");
    const std::string absolute = absolutePath(path);
    QTEST(absolute, "absolute");
    QTEST(splitPath(absolute).folder, "folder");
    QTEST(splitPath(absolute).name, "name");
}

/// Each name comes before all later ones and after none of them.
void NamesTest::listsAreOrderedForPeople() {
    const std::vector<std::string> ordered{
        "0",          "00",          "1",
        "02",         "10",          "a.jpg",
        "B.jpg",      "c.JPG",       "c.jpg",
        "img",        "IMG_1.jpg",   "IMG_2.jpg",
        "img_02.jpg", "IMG_9.jpg",   "img_9.jpg",
        "IMG_10.jpg", "IMG_10a.jpg", "IMG_99999999999999999999.jpg",
        "IMG_A.jpg",  "z",           "\xc3\xa9",
        "\xff"};
    for (std::size_t i = 0; i < ordered.size(); ++i) {
        for (std::size_t j = 0; j < ordered.size(); ++j) {
            QVERIFY2(namesInOrder(ordered[i], ordered[j]) == (i < j),
                     (ordered[i] + " and " + ordered[j]).c_str());
        }
    }
}

QTEST_APPLESS_MAIN(NamesTest)
#include "names_test.moc"
