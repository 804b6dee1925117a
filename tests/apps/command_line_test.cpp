#include "command_line.h"
#include "rows.h"

using namespace pinmora;
using namespace pinmora::app;

using Words = std::vector<std::string>;

class CommandLineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsPaths_data() {
        const auto row = test::rows<Words, Words>();
        const std::string here = std::filesystem::current_path().string() + "/";
        row("none", {}, {});
        row("relative", {"a.jpg", "/b"}, {here + "a.jpg", "/b"});
        row("not UTF-8", {"/\xE9.jpg"}, {"/\xE9.jpg"});
        row("like an option", {"--", "-x.jpg"}, {here + "-x.jpg"});
        row("empty", {"", "/b"}, {"/b"});
        row("a mere dash", {"-"}, {here + "-"});
    }

    void readsPaths() {
        auto [arguments, paths] = test::fetch<Words, Words>();
        arguments.insert(arguments.begin(), "pinmora");
        const CommandLine parsed = parseCommandLine(arguments);
        QCOMPARE(parsed.paths, paths);
        QVERIFY(parsed.message.empty());
    }

    void answersInsteadOfStarting() {
        QVERIFY(!parseCommandLine({"pinmora", "--help"}).wrong);
        QVERIFY(!parseCommandLine({"pinmora", "a.jpg", "--version"}).message.empty());
        const CommandLine mistyped = parseCommandLine({"pinmora", "--gps", "a.gpx"});
        QVERIFY(mistyped.wrong && mistyped.paths.empty());
        QVERIFY(mistyped.message.find("--gps") != std::string::npos);
    }
};

QTEST_APPLESS_MAIN(CommandLineTest)
#include "command_line_test.moc"
