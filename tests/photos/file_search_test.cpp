#include "photos/file_search.h"

#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <fstream>
#include <sys/stat.h>

using namespace pinmora;
namespace fs = std::filesystem;

namespace {

/// One wanted file as it stands in a row: a name, a size or -1, the former folder.
struct Wanted {
    const char *name;
    int size;
    const char *formerFolder;
};

bool always(const SearchProgress & /*progress*/) {
    return true;
}

} // namespace

class FileSearchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { folder_ = std::make_unique<QTemporaryDir>(); }
    void cleanup() { fs::remove_all(root()); }
    void finds_data();
    void finds();
    void namesThatAreNoText();
    void endsWhenTold();
    void survivesFoldersThatGo();

private:
    fs::path root() const { return folder_->path().toStdString(); }
    void put(const std::string &path) {
        fs::create_directories((root() / path).parent_path());
        if (!path.ends_with('/')) {
            std::ofstream(root() / path) << "four";
        }
    }
    QByteArray found(const std::vector<WantedFile> &wanted) const {
        std::string paths;
        for (const auto &path : findFiles(root().native(), wanted, always)) {
            paths += (paths.empty() ? "" : " ") +
                     (path ? path->substr(root().native().size() + 1) : std::string("-"));
        }
        return QByteArray::fromStdString(paths);
    }

    std::unique_ptr<QTemporaryDir> folder_;
};

void FileSearchTest::finds_data() {
    QTest::addColumn<QByteArrayList>("files");
    QTest::addColumn<QByteArrayList>("links"); ///< "name>target"
    QTest::addColumn<std::vector<Wanted>>("wanted");
    QTest::addColumn<QByteArray>("places");
    using Files = QByteArrayList;
    using List = std::vector<Wanted>;
    const auto row = [](const char *name, const Files &files, const Files &links,
                        const List &wanted, const char *places) {
        QTest::newRow(name) << files << links << wanted << QByteArray(places);
    };
    row("below", {"a/b/c/1.jpg"}, {}, {{"1.jpg", 4, "/x"}}, "a/b/c/1.jpg");
    row("directly in it", {"1.jpg"}, {}, {{"1.jpg", -1, "/x"}}, "1.jpg");
    row("nowhere", {"a/1.jpg", "a/2.jpg.txt"}, {}, {{"2.jpg", -1, "/x"}}, "-");
    row("exact name", {"a/1.JPG"}, {}, {{"1.jpg", -1, "/x"}}, "-");
    row("another size", {"a/1.jpg"}, {}, {{"1.jpg", 5, "/x"}}, "-");
    row("in a hidden folder", {".thumbs/1.jpg", "a/.b/1.jpg"}, {}, {{"1.jpg", -1, "/x"}}, "-");
    row("a folder of that name", {"1.jpg/", "a/1.jpg"}, {}, {{"1.jpg", -1, "/x"}}, "a/1.jpg");
    row("first for people", {"b/10/1.jpg", "b/9/1.jpg", "c/1.jpg"}, {}, {{"1.jpg", -1, "/x"}},
        "b/9/1.jpg");
    row("deep before later folder", {"a/z/1.jpg", "b/1.jpg"}, {}, {{"1.jpg", -1, "/x"}},
        "a/z/1.jpg");
    row("same folder name", {"a/101/1.jpg", "b/100/1.jpg"}, {}, {{"1.jpg", -1, "/card/100"}},
        "b/100/1.jpg");
    row("longest tail of folders", {"a/DCIM/100/1.jpg", "b/100/1.jpg", "c/x/DCIM/100/1.jpg"}, {},
        {{"1.jpg", -1, "/card/x/DCIM/100"}}, "c/x/DCIM/100/1.jpg");
    row("one name from two cards", {"new/100/1.jpg", "new/101/1.jpg"}, {},
        {{"1.jpg", 4, "/card/101"}, {"1.jpg", 4, "/card/100"}}, "new/101/1.jpg new/100/1.jpg");
    row("who came from there goes first", {"a/100/1.jpg", "b/1.jpg"}, {},
        {{"1.jpg", -1, "/x"}, {"1.jpg", -1, "/card/100"}}, "b/1.jpg a/100/1.jpg");
    row("one file for two", {"a/1.jpg"}, {}, {{"1.jpg", -1, "/x"}, {"1.jpg", -1, "/y"}},
        "a/1.jpg -");
    row("linked folder", {".far/1.jpg"}, {"a>.far"}, {{"1.jpg", -1, "/x"}}, "a/1.jpg");
    row("own path before a linked one", {"b/c/1.jpg"}, {"a>b"}, {{"1.jpg", -1, "/x"}}, "b/c/1.jpg");
    row("linked twice is one", {"b/1.jpg"}, {"a>b", "c>b"},
        {{"1.jpg", -1, "/x"}, {"1.jpg", -1, "/x"}}, "b/1.jpg -");
    row("circles of links", {"a/1.jpg"}, {"a/up>..", "a/self>.", "o>o"}, {{"1.jpg", -1, "/x"}},
        "a/1.jpg");
    row("linked file", {".far/1.jpg"}, {"1.jpg>.far/1.jpg"}, {{"1.jpg", 4, "/x"}}, "1.jpg");
    row("two links to one file", {".far/1.jpg"}, {"1.jpg>.far/1.jpg", "2.jpg>.far/1.jpg"},
        {{"1.jpg", 4, "/x"}, {"2.jpg", 4, "/x"}}, "1.jpg -");
    row("link to nowhere", {}, {"1.jpg>gone"}, {{"1.jpg", -1, "/x"}}, "-");
    row("none wanted", {"a/1.jpg"}, {}, {}, "");
}

void FileSearchTest::finds() {
    QFETCH(const QByteArrayList, files);
    QFETCH(const QByteArrayList, links);
    QFETCH(const std::vector<Wanted>, wanted);
    for (const QByteArray &file : files) {
        put(file.toStdString());
    }
    for (const QByteArray &link : links) {
        const QByteArrayList parts = link.split('>');
        fs::create_symlink(parts[1].toStdString(), root() / parts[0].toStdString());
    }
    std::vector<WantedFile> list;
    for (const Wanted &one : wanted) {
        list.push_back(
            {.name = one.name,
             .size = one.size < 0 ? std::nullopt : std::optional<std::uintmax_t>(one.size),
             .formerPath = std::string(one.formerFolder) + "/" + one.name});
    }
    QTEST(found(list), "places");
}

void FileSearchTest::namesThatAreNoText() {
    put("d\xff/\xe9.jpg");
    ::mkfifo((root() / "pipe.jpg").c_str(), 0600);
    QCOMPARE(found({{"\xe9.jpg", std::nullopt, "/x/\xe9.jpg"},
                    {"pipe.jpg", std::nullopt, "/x/pipe.jpg"}}),
             QByteArray("d\xff/\xe9.jpg -"));
}

void FileSearchTest::endsWhenTold() {
    put("1.jpg");
    put("a/2.jpg");
    std::vector<std::size_t> asked;
    const auto places =
        findFiles(root().native(), {{"1.jpg", {}, "/x/1.jpg"}, {"2.jpg", {}, "/x/2.jpg"}},
                  [&asked](const SearchProgress &progress) {
                      asked.push_back(progress.folders);
                      return progress.folders == 0;
                  });
    QCOMPARE(asked, (std::vector<std::size_t>{0, 1}));
    QVERIFY(places[0]);
    QVERIFY(!places[1]);
}

void FileSearchTest::survivesFoldersThatGo() {
    for (const char *folder : {"a/b/c/1.jpg", "d/e/1.jpg"}) {
        put(folder);
    }
    const auto places = findFiles(root().native(), {{"1.jpg", {}, "/x/1.jpg"}},
                                  [this](const SearchProgress &progress) {
                                      if (progress.folders == 1) {
                                          fs::remove_all(root() / "a");
                                          fs::remove_all(root() / "d");
                                      }
                                      return true;
                                  });
    QVERIFY(!places[0]);
    QVERIFY(!findFiles("/there is no such folder", {{"1.jpg", {}, "/x/1.jpg"}}, always)[0]);
}

QTEST_GUILESS_MAIN(FileSearchTest)
#include "file_search_test.moc"
