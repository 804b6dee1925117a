#include "house/include_rules.h"

#include <QTemporaryDir>
#include <QTest>

#include <fstream>

namespace fs = std::filesystem;

namespace {

struct File {
    std::string path;
    std::string text;
};
using Tree = std::vector<File>;

void write(const fs::path &root, const Tree &tree) {
    for (const File &file : tree) {
        fs::create_directories((root / file.path).parent_path());
        std::ofstream(root / file.path) << file.text;
    }
}

std::string lines(const std::vector<std::string> &complaints) {
    std::string text;
    for (const std::string &complaint : complaints) {
        text += complaint + "\n";
    }
    return text;
}

/// A tree in which `file` includes `header` (src/`header` is there too, unless it is a library's).
Tree includes(const std::string &file, const std::string &header) {
    if (header.starts_with('<')) {
        return {{file, "#include " + header + "\n"}};
    }
    return {{file, "#include \"" + header + "\"\n"}, {"src/" + header, "#pragma once\n"}};
}

} // namespace

Q_DECLARE_METATYPE(Tree)

/// The rooms of the house include downwards only, and the reader of includes that says so sees
/// each kind of fault.
class LayeringTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thisTreeHasOnlyAllowedIncludes() {
        QVERIFY(fs::exists(fs::path(PINMORA_SOURCE_DIR) / "src/platform"));
        const std::string complaints = lines(house::forbiddenIncludes(PINMORA_SOURCE_DIR));
        QVERIFY2(complaints.empty(), complaints.c_str());
    }

    void faultIsNamed_data() {
        QTest::addColumn<Tree>("tree");
        QTest::addColumn<std::string>("expected");
        const auto row = [](const char *name, const Tree &tree, const std::string &expected) {
            QTest::newRow(name) << tree << (expected.empty() ? expected : expected + "\n");
        };
        row("down", includes("src/gps/a.cpp", "store/track.h"), "");
        row("down over several floors", includes("src/ui/a.cpp", "platform/date.h"), "");
        row("own room", includes("src/gps/a.cpp", "gps/a.h"), "");
        row("matching to coords", includes("src/matching/a.h", "coords/offset.h"), "");
        row("saving to photos", includes("src/saving/a.h", "photos/intake.h"), "");
        row("command line to services", includes("apps/pinmora-tag/a.cpp", "services/a.h"), "");
        row("beside the file",
            {{"apps/pinmora-tag/a.cpp", "#include \"b.h\""}, {"apps/pinmora-tag/b.h", ""}}, "");
        row("generated", {{"src/gps/a.cpp", "#include \"a.moc\"\n"}}, "");
        row("commented out", {{"src/gps/a.cpp", "// #include \"photos/a.h\"\n"}}, "");

        row("sideways", includes("src/gps/a.cpp", "photos/intake.h"),
            "src/gps/a.cpp:1: photos/intake.h: gps must not include photos");
        row("against the arrow", includes("src/coords/a.cpp", "matching/index.h"),
            "src/coords/a.cpp:1: matching/index.h: coords must not include matching");
        row("up", includes("src/platform/a.h", "store/track.h"),
            "src/platform/a.h:1: store/track.h: platform must not include store");
        row("records to outlets' neighbour", includes("src/persistence/a.h", "outlets/sheet.h"),
            "src/persistence/a.h:1: outlets/sheet.h: persistence must not include outlets");
        row("logic to windows", includes("src/shell/a.cpp", "ui/window.h"),
            "src/shell/a.cpp:1: ui/window.h: shell must not include ui");
        row("command line to windows", includes("apps/pinmora-tag/a.cpp", "ui/window.h"),
            "apps/pinmora-tag/a.cpp:1: ui/window.h: apps/pinmora-tag must not include ui");
        row("by a relative path",
            {{"src/gps/a.cpp", "\n  # include \"../photos/a.h\"\n"}, {"src/photos/a.h", ""}},
            "src/gps/a.cpp:2: ../photos/a.h: gps must not include photos");
        row("missing", {{"src/gps/a.cpp", "#include \"store/gone.h\"\n"}},
            "src/gps/a.cpp:1: store/gone.h: there is no such file");
        row("unknown room", includes("src/helpers/a.cpp", "platform/date.h"),
            "src/helpers/a.cpp: is in no room of the design");
        row("no room", {{"src/a.h", ""}}, "src/a.h: is in no room of the design");
        row("its own header last",
            {{"src/gps/a.cpp", "#include <string>\n#include \"gps/a.h\"\n"}, {"src/gps/a.h", ""}},
            "src/gps/a.cpp: must include its own header first");

        const std::string windows = "only ui and apps/pinmora know windows";
        row("image in the logic", includes("src/platform/a.cpp", "<QImage>"), "");
        row("widget in ui", includes("src/ui/a.cpp", "<QWidget>"), "");
        row("widget in the program", includes("apps/pinmora/main.cpp", "<QApplication>"), "");
        row("widget", includes("src/shell/a.cpp", "<QWidget>"),
            "src/shell/a.cpp:1: QWidget: " + windows);
        row("widget, lower case", includes("src/gps/a.h", "<qmessagebox.h>"),
            "src/gps/a.h:1: qmessagebox.h: " + windows);
        row("widget module", includes("src/gps/a.h", "<QtWidgets/QLabel>"),
            "src/gps/a.h:1: QtWidgets/QLabel: " + windows);
        row("web engine", includes("apps/pinmora-tag/a.cpp", "<QWebEngineView>"),
            "apps/pinmora-tag/a.cpp:1: QWebEngineView: " + windows);
        row("Exiv2 in one file",
            {{"src/platform/a.cpp", "#include <exiv2/exiv2.hpp>\n"
                                    "#include <exiv2/error.hpp>\n"}},
            "");
        row("Exiv2 in two files",
            {{"src/platform/a.cpp", "#include <exiv2/exiv2.hpp>\n"},
             {"src/platform/b.cpp", "#include <exiv2/exiv2.hpp>\n"}},
            "src/platform/b.cpp:1: exiv2/exiv2.hpp: Exiv2 belongs to one file of platform");
        row("Exiv2 elsewhere", includes("src/photos/a.cpp", "<exiv2/image.hpp>"),
            "src/photos/a.cpp:1: exiv2/image.hpp: Exiv2 belongs to one file of platform");
    }

    void faultIsNamed() {
        QFETCH(Tree, tree);
        QFETCH(std::string, expected);
        const QTemporaryDir directory;
        write(directory.path().toStdString(), tree);
        QCOMPARE(lines(house::forbiddenIncludes(directory.path().toStdString())), expected);
    }
};

QTEST_APPLESS_MAIN(LayeringTest)
#include "layering_test.moc"
