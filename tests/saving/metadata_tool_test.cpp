#include "saving/metadata_tool.h"

#include "saving/folders.h"

#include <QTest>

using namespace pinmora;

using End = ToolResult::End;

class MetadataToolTest : public QObject {
    Q_OBJECT

    static ToolResult run(const Folders &folders, std::vector<std::string> arguments = {}) {
        const MetadataTool tool{folders.resources, {.total = std::chrono::milliseconds{300}}};
        const auto copy = folders.copies / "a b.jpg";
        writeBytes(copy, "photo");
        FileTimes old{{1'000'000'000, 0}, {1'000'000'000, 0}};
        if (writeFileTimes(copy, old)) {
            return {};
        }
        arguments.push_back(copy);
        return tool.write(std::move(arguments), old);
    }

private Q_SLOTS:
    void tellsHowItWent_data() {
        QTest::addColumn<std::string>("script");
        QTest::addColumn<End>("end");
        QTest::addColumn<std::string>("words");
        const auto row = [](const char *what, std::string script, End end, std::string words) {
            QTest::newRow(what) << std::move(script) << end << std::move(words);
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
        row("killed", "kill -9 $$", End::NotWritten, "ExifTool was ended by signal 9");
        row("hanging", "exec sleep 60", End::NotWritten, "ExifTool took too long and was ended");
        row("failing in mid-write", "echo half > \"$copy\"; exit 1", End::HalfWritten,
            "ExifTool ended with status 1");
        row("killed in mid-write", "printf PHOTO > \"$copy\"; kill -9 $$", End::HalfWritten,
            "ExifTool was ended by signal 9");
        row("flood", "yes 'Warning: Odd' | head -c 1000000 >&2; exit 1", End::NotWritten, "Odd");
    }
    void tellsHowItWent() {
        QFETCH(std::string, script);
        QFETCH(End, end);
        QFETCH(std::string, words);
        Folders folders;
        folders.standIn(script);
        const ToolResult result = run(folders);
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

    void leftoversOfTheToolAreCleared() {
        Folders folders;
        folders.standIn("echo > \"${copy}_exiftool_tmp\"");
        QCOMPARE(run(folders).end, End::Written);
        QCOMPARE(folders.copyNames(), std::set<std::string>{"a b.jpg"});
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
        const ToolResult result = run(folders);
        QCOMPARE(result.end, End::NotWritten);
        QVERIFY(
            QByteArray::fromStdString(result.words).startsWith("ExifTool could not be started"));
    }
};

QTEST_APPLESS_MAIN(MetadataToolTest)
#include "metadata_tool_test.moc"
