#include "command_line.h"

#include <QTest>

#include <filesystem>

using namespace pinmora::app;

using Words = std::vector<std::string>;

Q_DECLARE_METATYPE(Words)

class CommandLineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsPaths_data() {
        QTest::addColumn<Words>("arguments");
        QTest::addColumn<Words>("paths");
        const std::string here = std::filesystem::current_path().string() + "/";
        QTest::newRow("none") << Words{} << Words{};
        QTest::newRow("relative") << Words{"a.jpg", "/b"} << Words{here + "a.jpg", "/b"};
        QTest::newRow("not UTF-8") << Words{"/\xE9.jpg"} << Words{"/\xE9.jpg"};
        QTest::newRow("like an option") << Words{"--", "-x.jpg"} << Words{here + "-x.jpg"};
        QTest::newRow("empty") << Words{"", "/b"} << Words{"/b"};
        QTest::newRow("a mere dash") << Words{"-"} << Words{here + "-"};
    }

    void readsPaths() {
        QFETCH(Words, arguments);
        arguments.insert(arguments.begin(), "pinmora");
        const CommandLine parsed = parseCommandLine(arguments);
        QTEST(parsed.paths, "paths");
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
