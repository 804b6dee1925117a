#include "persistence/store_files.h"
#include "rows.h"

using namespace pinmora;
using namespace pinmora::test;

/// What cannot be read is refused with its place and the reason, as a whole, and left as it is.
class StoreDamageTest : public QObject, StoreDesk {
    Q_OBJECT

    static std::string head(const std::string &records) {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<pinmora-library version=\"1\" "
               "state=\"a1\" next=\"10\" records=\"" +
               records + "\">\n";
    }

private Q_SLOTS:
    void init() { makeRoom(); }

    void damageIsRefused_data() {
        const auto row = test::rows<std::string, std::size_t, std::string>();
        const auto records = [&](const char *name, const std::string &lines, std::size_t line,
                                 const char *reason, const std::string &count = "2") {
            row(name, head(count) + lines + "</pinmora-library>\n", line, reason);
        };
        row("blanks", " \n ", 2, "no element found");
        row("no XML", "GIF89a", 1, "syntax error");
        row("zeros", std::string(4096, '\0'), 1, "not well-formed (invalid token)");
        row("a log", "<?xml version=\"1.0\"?>\n<gpx/>", 2, "this is no library but \"gpx\"");
        const auto root = [&](const char *attributes, const char *reason) {
            row(attributes, "<pinmora-library " + std::string(attributes) + "/>", 1, reason);
        };
        const char *const incomplete =
            "a library says its version, state, next id and number of records";
        root("version='2' state='a' units='m'",
             "the library has the format version \"2\", this program reads 1");
        root("state='a' next='1' records='0'",
             "the library has the format version \"\", this program reads 1");
        root("version='1' next='1' records='0'", incomplete);
        root("version='1' state='' next='1' records='0'", incomplete);
        root("version='1' state='a' next='-1' records='0'", incomplete);
        root("version='1' state='a' next='1' records='many'", incomplete);
        root("version='1' state='a' next='1' records='0' more='1'", incomplete);

        records("unknown record", "<track/>\n<tracks/>\n", 4,
                "there is no kind of record called \"tracks\"");
        records("record that is not stored", "<degrees/>", 3,
                "there is no kind of record called \"degrees\"");
        records("unknown key", "<track/>\n<track colour=\"red\"/>", 4,
                "track has no key \"colour\"");
        records("derived key", "<image zoomtext=\"\"/>", 3, "image has no key \"zoomtext\"");
        records("unreadable value", "<track/><track\n\ntrack_id=\"1e3\"/>", 3,
                "\"1e3\" is no value of track.track_id");
        records("serial twice", "<track id=\"5\"/>\n<track id=\"5\"/>", 4,
                "the id 5 comes after 5 and before 10");
        records("serial out of order", "<track id=\"5\"/>\n<track id=\"4\"/>", 4,
                "the id 4 comes after 5 and before 10");
        records("serial beyond the next", "<track id=\"9\"/>\n<track/>", 4,
                "the id 10 comes after 9 and before 10");
        records("link to nothing", "<track/>\n<track_part track=\"8\"/>", 4,
                "track_part.track leads to 8, which is no such record");
        records("link to a wrong record", "<image/>\n<track_part_best track=\"1\"/>\n", 4,
                "track_part_best.track leads to 1, which is no such record");
        records("link to itself", "<track/>\n<track_part track=\"2\"/>", 4,
                "track_part.track leads to 2, which is no such record");
        records("a record is missing", "<track/>\n", 5, "there are 1 records, there should be 2");
        records("a record too much", "<track/><track/><track/>", 4,
                "there are 3 records, there should be 2");
        records("text", "<track/>\nlost\n<track/>", 4, "there is text between the records");
        records("record in a record", "<track>\n<track/></track>", 4,
                "there is a record within a record");
        records("end of another", "<track/>\n<track></image>", 4, "mismatched tag");
        records("broken tag", "<track/>\n<track track_id=\"1/>\n", 5,
                "not well-formed (invalid token)");
        records("bytes that are no UTF-8", "<track/>\n<track log_path=\"\xE9\"/>", 4,
                "not well-formed (invalid token)");
        records("unknown entity", "<track/>\n<track log_path=\"&home;\"/>", 4, "undefined entity");
        records("two libraries", "<track/><track/></pinmora-library>\n" + head("0"), 4,
                "junk after document element");
        row("external entity",
            "<!DOCTYPE pinmora-library [\n<!ENTITY e SYSTEM \"Pinmora.xml\">\n]>\n"
            "<pinmora-library version='1' state='a' next='3' records='1'>\n&e;</pinmora-library>",
            5, "error in processing external entity reference");
    }

    void damageIsRefused() {
        const auto [bytes, line, reason] = test::fetch<std::string, std::size_t, std::string>();
        put(path, bytes);
        Context context(model);
        const std::string said = read(context);
        QVERIFY2(said == path.string() + ", line " + std::to_string(line) + ": " + reason + ".",
                 said.c_str());
        QCOMPARE(recordsIn(context), 0U);
        QVERIFY(!context.hasChanges());
        QVERIFY(contents(path) == bytes);
    }

    void cutFilesAreRefused() {
        Context whole(model);
        fill(whole);
        QVERIFY(!XmlStore(path).write(whole, "a1"));
        const std::string bytes = contents(path);
        QVERIFY(bytes.ends_with(">\n"));
        for (std::size_t length = 1; length < bytes.size() - 1; ++length) {
            put(path, std::string_view(bytes).substr(0, length));
            Context context(model);
            QVERIFY2(read(context) != "", std::to_string(length).c_str());
            QCOMPARE(recordsIn(context), 0U);
        }
    }

    void noFile() {
        fs::create_directory(path);
        Context context(model);
        XmlStore store(path);
        const auto reading = store.read(context);
        QCOMPARE(reading.value().message(), path.string() + ": Is a directory.");
        QCOMPARE(reading.value().code, std::errc::is_a_directory);
        fill(context);
        const auto writing = store.write(context, "a1");
        QCOMPARE(writing.value().code, std::errc::is_a_directory);
        QVERIFY(fs::is_empty(path));
        QCOMPARE(entries(path.parent_path()), 1U);
    }
};

QTEST_APPLESS_MAIN(StoreDamageTest)
#include "store_damage_test.moc"
