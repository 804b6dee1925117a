#include "saving/metadata_tool.h"

#include "platform/defaults.h"
#include "saving/folders.h"

#include <QTest>

using namespace pinmora;

using End = ToolResult::End;

class MetadataToolTest : public QObject {
    Q_OBJECT

    static ToolResult run(const Folders &folders, ToolLane lane = ToolLane::Process) {
        const MetadataTool tool{folders.resources,
                                {.lane = lane, .patience = std::chrono::milliseconds{300}}};
        const auto copy = folders.copies / "a b.jpg";
        writeBytes(copy, "photo");
        FileTimes old{{1'000'000'000, 0}, {1'000'000'000, 0}};
        if (writeFileTimes(copy, old)) {
            return {};
        }
        return tool.write({copy}, old);
    }

private Q_SLOTS:
    void tellsHowItWent_data() {
        QTest::addColumn<std::string>("script");
        QTest::addColumn<End>("end");
        QTest::addColumn<std::string>("words");
        QTest::addColumn<ToolLane>("lane");
        const auto row = [](const char *what, const std::string &script, End end,
                            const std::string &words) {
            for (const ToolLane lane : lanes) {
                QTest::addRow("%s, %s", what, laneName(lane).data())
                    << script << end << words << lane;
            }
        };
        row("done", "echo x >> \"$copy\"; echo '1 image files updated'", End::Written, "");
        row("warning", "echo \"Warning: [minor] Odd - $copy\" >&2", End::WrittenWithWarning,
            "[minor] Odd");
        row("interpreter's remark", "echo 'perl: warning: no locale' >&2", End::Written, "");
        row("error", "printf \"Warning: Odd - $copy\nError: Not a JPG - $copy\n\" >&2; exit 1",
            End::NotWritten, "Odd; Not a JPG");
        row("other failure", "echo \"Can't locate strict.pm\" >&2; exit 2", End::NotWritten,
            "Can't locate strict.pm");
        row("silent failure", "exit 3", End::NotWritten, "ExifTool ended with status 3");
        row("killed", "kill -9 $$", End::Doubtful, "ExifTool was ended by signal 9");
        row("hanging", "exec sleep 60", End::Doubtful, "ExifTool took too long and was ended");
        row("failing in mid-write", "echo half > \"$copy\"; exit 1", End::Doubtful,
            "ExifTool ended with status 1");
        row("killed in mid-write", "printf PHOTO > \"$copy\"; kill -9 $$", End::Doubtful,
            "ExifTool was ended by signal 9");
        row("flood", "yes 'Warning: Odd' | head -c 1000000 >&2; yes | head -c 1000000; exit 1",
            End::NotWritten, "Odd");
        row("flood without end", "yes 'Warning: Odd' >&2", End::Doubtful, "Odd");
        row("longer than its patience, but at work",
            "for i in 1 2 3 4 5 6; do sleep 0.1; echo >> \"${copy}_exiftool_tmp\"; done",
            End::Written, "");
        row("its parts at work after its own end", "yes > \"${copy}_exiftool_tmp\" & kill -9 $$",
            End::Doubtful, "ExifTool was ended by signal 9");
    }
    void tellsHowItWent() {
        QFETCH(std::string, script);
        QFETCH(End, end);
        QFETCH(std::string, words);
        QFETCH(ToolLane, lane);
        Folders folders;
        folders.standIn(script);
        const ToolResult result = run(folders, lane);
        QVERIFY(result.words.size() < 1000);
        QCOMPARE(folders.copyNames(), std::set<std::string>{"a b.jpg"});
        QCOMPARE(result.words.substr(0, words.empty() ? std::string::npos : words.size()), words);
        QCOMPARE(result.end, end);
    }

    void setsTheTimesAgain() {
        Folders folders;
        folders.standIn("echo x >> \"$copy\"");
        run(folders);
        FileTimes times;
        QVERIFY(!readFileTimes(folders.copies / "a b.jpg", times));
        QCOMPARE(times.modification.tv_sec, 1'000'000'000);
    }

    void writesToAProtectedCopyAndProtectsItAgain() {
        namespace fs = std::filesystem;
        Folders folders;
        folders.standIn("stat -c %a \"$copy\" > \"${copy%/*}/mode\"");
        const MetadataTool tool{folders.resources};
        const auto copy = folders.copies / "a.jpg";
        writeBytes(copy, "photo");
        fs::permissions(copy, fs::perms{0444});
        QCOMPARE(tool.write({copy}, {}).end, End::Written);
        QCOMPARE(bytesOf(folders.copies / "mode"), "644\n");
        QCOMPARE(fs::status(copy).permissions(), fs::perms{0444});
    }

    /// It may be the only whole photo that somebody's broken-off run has left.
    void aFileThatWasThereBeforeStays() {
        Folders folders;
        folders.standIn("exit 1");
        writeBytes(folders.copies / "a b.jpg_exiftool_tmp", "precious");
        QCOMPARE(run(folders).end, End::NotWritten);
        QCOMPARE(bytesOf(folders.copies / "a b.jpg_exiftool_tmp"), "precious");
    }

    void takesTheBundledToolBeforeTheInstalledOne() {
        Folders folders;
        const MetadataTool tool{folders.resources};
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", folders.copies.c_str());
        QVERIFY(!tool.locate());
        writeBytes(folders.copies / "exiftool", "");
        std::filesystem::permissions(folders.copies / "exiftool", std::filesystem::perms{0755});
        QCOMPARE(tool.locate(), folders.copies / "exiftool");
        writeBytes(folders.resources / "exiftool", "not executable");
        QCOMPARE(tool.locate(), folders.copies / "exiftool");
        folders.standIn("");
        QCOMPARE(tool.locate(), folders.resources / "exiftool");
        qputenv("PATH", path);
    }

    void aToolThatCannotStartIsNotWritten() {
        Folders folders;
        folders.standIn("");
        writeBytes(folders.resources / "exiftool", "#!/no/such/interpreter\n");
        for (const ToolLane lane : lanes) {
            const ToolResult result = run(folders, lane);
            QCOMPARE(result.end, End::NotWritten);
            QCOMPARE(result.words, "ExifTool could not be started: No such file or directory");
        }
    }

    /// Open tools that answer out of turn, or say nothing to the point.
    void anOpenToolThatIsOutOfStepIsReplaced_data() {
        QTest::addColumn<std::string>("answer"); // to the first list; N stands for its number
        QTest::addColumn<std::string>("words");
        const std::string late = "ExifTool took too long and was ended";
        QTest::newRow("an earlier number") << std::string("{status1 0}|{ready1}") << late;
        QTest::newRow("no number") << std::string("{status 0}|{ready}") << late;
        QTest::newRow("no status") << std::string("{statusN }|{readyN}") << late;
        QTest::newRow("half an answer") << std::string("|{readyN}") << late;
        QTest::newRow("the end") << std::string("end|")
                                 << std::string("ExifTool ended before it was done");
        QTest::newRow("reads nothing") << std::string("deaf|") << late;
    }
    void anOpenToolThatIsOutOfStepIsReplaced() {
        QFETCH(std::string, answer);
        QFETCH(std::string, words);
        Folders folders;
        folders.standIn(":");
        const std::string good = bytesOf(folders.resources / "exiftool");
        const std::string errors = answer.substr(0, answer.find('|'));
        writeBytes(folders.resources / "exiftool", R"(#!/bin/sh
answer() { echo "$1" | sed "s/N/$number/"; }
)" + std::string(errors == "deaf" ? "exec sleep 60" : "") +
                                                       R"(
while read -r line; do
    case $line in
    -execute*)
        number=${line#-execute}
        )" + (errors == "end" ? "exit 0" : "answer '" + errors + "' >&2") +
                                                       R"(
        answer ')" + answer.substr(answer.find('|') + 1) +
                                                       R"('
        ;;
    -stay_open) exit ;;
    esac
done
)");
        // A shell reads its input byte by byte, and may need a while for all of the list.
        const bool ends = errors == "end";
        const MetadataTool tool{
            folders.resources,
            {.lane = ToolLane::Shared, .patience = std::chrono::milliseconds{ends ? 20'000 : 300}}};
        const auto copy = folders.copies / "a.jpg";
        writeBytes(copy, "photo");
        const ToolResult first = tool.write({"-Comment=" + std::string(100'000, 'x'),
                                             "-City=" + std::string(120'000, 'x'),
                                             "-Artist=" + std::string(120'000, 'x'), copy},
                                            {});
        QVERIFY2(first.words.ends_with(words), first.words.c_str());
        QCOMPARE(first.end, End::Doubtful);
        writeBytes(folders.resources / "exiftool", good);
        QCOMPARE(tool.write({copy}, {}).end, End::Written);
    }

    void takesPatienceFromTheSettings_data() {
        QTest::addColumn<std::string>("text");
        QTest::addColumn<int>("milliseconds");
        QTest::newRow("seconds") << std::string("30") << 30'000;
        QTest::newRow("a fraction") << std::string("0.25") << 250;
        for (const char *wrong : {"0", "-1", "soon", "1 minute", "", "nan", "1e3"}) {
            QTest::addRow("\"%s\"", wrong) << std::string(wrong) << 120'000;
        }
    }
    void takesPatienceFromTheSettings() {
        QFETCH(std::string, text);
        QFETCH(int, milliseconds);
        Defaults defaults;
        defaults.setText("toolPatience", text);
        defaults.setText("toolLane", text);
        const ToolSettings settings = toolSettingsFrom(defaults);
        QCOMPARE(settings.patience.count(), milliseconds);
        QCOMPARE(settings.lane, ToolLane::Process);
        defaults.setText("toolLane", "shared");
        QCOMPARE(toolSettingsFrom(defaults).lane, ToolLane::Shared);
    }
};

QTEST_APPLESS_MAIN(MetadataToolTest)
#include "metadata_tool_test.moc"
