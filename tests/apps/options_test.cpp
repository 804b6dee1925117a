#include "options.h"
#include "rows.h"

using namespace pinmora;
using namespace pinmora::tag;
using Words = std::vector<std::string>;

namespace {

std::variant<Options, Usage> parse(Words arguments) {
    arguments.insert(arguments.begin(), "pinmora-tag");
    return parseCommandLine(std::move(arguments));
}

} // namespace

class OptionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsOffsets_data() {
        const auto row = test::rowsByValue<std::string, int, bool>();
        row("1:0:0", 3600, true);
        row("+0:0:40", 40, true);
        row("-01:02:03", -3723, true);
        row("1:75:0", 8100, true);
        for (const char *wrong : {"", "1", "1:2", "1:2:3:4", "1:2:", "a:0:0", "1:-2:0", "--1:0:0",
                                  "1:0:0 ", "99999999999:0:0", "1.5:0:0"}) {
            row(wrong, 0, false);
        }
    }

    void readsOffsets() {
        const auto [text, seconds, right] = test::fetch<std::string, int, bool>();
        const auto result = parse({"--offset", text, "--out", "d", "p.jpg"});
        QCOMPARE(std::holds_alternative<Options>(result), right);
        if (right) {
            QCOMPARE(std::get<Options>(result).offset.count(), std::int64_t(seconds));
        }
    }

    void refusesWrongUsage_data() {
        const auto row = test::rows<Words, std::string>();
        const std::string out = "--out=d";
        row("nothing", {}, "which photos");
        row("no folder", {"a.jpg"}, "--out");
        row("unknown option", {out, "--fast", "a.jpg"}, "--fast");
        row("unknown letter", {out, "-x", "a.jpg"}, "-x");
        row("value missing", {"a.jpg", "--out"}, "--out wants");
        row("value too many", {out, "--json=yes", "a.jpg"}, "--json");
        row("reading", {out, "--logs=strict", "a.jpg"}, "strict");
        row("lane", {out, "--lane=fast", "a.jpg"}, "fast");
        row("name with a folder", {out, "--name=a/b", "a.jpg"}, "--name");
        row("empty name", {out, "--name=", "a.jpg"}, "--name");
    }

    void refusesWrongUsage() {
        const auto [arguments, says] = test::fetch<Words, std::string>();
        const auto result = parse(arguments);
        QVERIFY(std::holds_alternative<Usage>(result));
        const Usage &usage = std::get<Usage>(result);
        QVERIFY(usage.wrong);
        QVERIFY2(usage.text.find(says) != std::string::npos, usage.text.c_str());
    }

    void takesEverythingInAnyOrder() {
        const auto result = parse({"photos", "--gps", "a.gpx", "--dry-run", "--gps=b.log", "--json",
                                   "--logs", "tolerant", "--lane=shared", "--no-places", "--name",
                                   "trip", "--out", "there", "--", "--odd.jpg", "caf\xe9.jpg"});
        QVERIFY(std::holds_alternative<Options>(result));
        const auto &options = std::get<Options>(result);
        QVERIFY(options.logs == (std::vector<std::filesystem::path>{"a.gpx", "b.log"}));
        QVERIFY(options.paths ==
                (std::vector<std::filesystem::path>{"photos", "--odd.jpg", "caf\xe9.jpg"}));
        QVERIFY(options.out == "there" && options.name == "trip");
        QVERIFY(!options.places && Options().places);
        QVERIFY(options.lane == pinmora::ToolLane::Shared && !Options().lane);
        QVERIFY(options.dryRun && options.json && options.reading == LogsChoice::Tolerant);

        const auto help = parse({"--help"});
        QVERIFY(std::holds_alternative<Usage>(help) && !std::get<Usage>(help).wrong);
    }
};

QTEST_APPLESS_MAIN(OptionsTest)
#include "options_test.moc"
