#include "saving/copy_names.h"

#include "saving/folders.h"

#include <QTest>

using namespace pinmora;

using Names = std::vector<std::string>;
using Places = std::vector<std::size_t>;

class CopyNamesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void formsFileNames_data() {
        QTest::addColumn<std::string>("name");
        QTest::addColumn<std::string>("extension");
        QTest::addColumn<int>("attempt");
        QTest::addColumn<std::string>("fileName");
        const auto row = [](const char *what, std::string name, std::string extension, int attempt,
                            std::string fileName) {
            QTest::newRow(what) << std::move(name) << std::move(extension) << attempt
                                << std::move(fileName);
        };
        row("plain", "IMG_0042", "jpg", 0, "IMG_0042.jpg");
        row("numbered", "IMG_0042", "jpg", 12, "IMG_0042_12.jpg");
        row("no extension", "scan", "", 1, "scan_1.");
        row("another folder", "../../a", "jpg", 0, "..-..-a.jpg");
        row("from the root", "/etc/x", "p/g", 0, "-etc-x.p-g");
        row("parent folder", "..", "jpg", 0, "...jpg");
        row("not UTF-8", "\xff\n", "JPG", 0, "\xff\n.JPG");
    }
    void formsFileNames() {
        QFETCH(std::string, name);
        QFETCH(std::string, extension);
        QFETCH(int, attempt);
        QFETCH(std::string, fileName);
        QCOMPARE(copyFileName(name, extension, attempt), fileName);
    }

    void anythingTakesAName() {
        Folders folders;
        writeBytes(folders.copies / "file", "x");
        std::filesystem::create_directory(folders.copies / "folder");
        std::filesystem::create_symlink("file", folders.copies / "link");
        std::filesystem::create_symlink("nowhere", folders.copies / "dangling");
        for (const std::string &name : folders.copyNames()) {
            QVERIFY2(isTaken(folders.copies / name), name.c_str());
        }
        QVERIFY(!isTaken(folders.copies / "nowhere"));
        QVERIFY(!isTaken(folders.copies / "folder/file"));
        QVERIFY(!isTaken(folders.copies / std::string(300, 'x')));
    }

    void numbersNames_data() {
        QTest::addColumn<Names>("names");
        QTest::addColumn<Places>("chosen");
        QTest::addColumn<Names>("newNames");
        const auto row = [](const char *what, Names names, Places chosen, Names newNames) {
            QTest::newRow(what) << std::move(names) << std::move(chosen) << std::move(newNames);
        };
        row("in the given order", {"c", "b", "a"}, {2, 0}, {"trip_1", "trip_2"});
        row("another has a number", {"a", "b", "trip_2", "c"}, {0, 1, 3},
            {"trip_1", "trip_3", "trip_4"});
        row("its own name counts", {"trip_1"}, {0}, {"trip_2"});
        row("an old name gets free", {"trip_2", "a"}, {0, 1}, {"trip_1", "trip_2"});
        row("not while a second holds it", {"trip_2", "a", "trip_2"}, {0, 1}, {"trip_1", "trip_3"});
        row("the case counts", {"Trip_1", "trip_01", "a"}, {2}, {"trip_1"});
        row("one photo twice", {"a"}, {0, 0}, {"trip_1", "trip_2"});
        row("none", {"a"}, {}, {});
    }
    void numbersNames() {
        QFETCH(Names, names);
        QFETCH(Places, chosen);
        QFETCH(Names, newNames);
        QCOMPARE(numberedNames(names, chosen, "trip"), newNames);
    }
};

QTEST_APPLESS_MAIN(CopyNamesTest)
#include "copy_names_test.moc"
