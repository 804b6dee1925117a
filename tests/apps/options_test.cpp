#include "options.h"

#include <QtTest>

using namespace pinmora::tag;

class OptionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsOffsets_data();
    void readsOffsets();
    void refusesWrongUsage_data();
    void refusesWrongUsage();
    void takesEverythingInAnyOrder();
};

namespace {

std::variant<Options, Usage> parse(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "pinmora-tag");
    return parseCommandLine(std::move(arguments));
}

} // namespace

void OptionsTest::readsOffsets_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<bool>("right");
    QTest::newRow("without a sign") << QStringLiteral("1:0:0") << 3600 << true;
    QTest::newRow("plus") << QStringLiteral("+0:0:40") << 40 << true;
    QTest::newRow("minus") << QStringLiteral("-01:02:03") << -3723 << true;
    QTest::newRow("beyond 60") << QStringLiteral("1:75:0") << 8100 << true;
    for (const char *wrong : {"", "1", "1:2", "1:2:3:4", "1:2:", "a:0:0", "1:-2:0", "--1:0:0",
                              "1:0:0 ", "99999999999:0:0", "1.5:0:0"}) {
        QTest::newRow(wrong) << QString::fromLatin1(wrong) << 0 << false;
    }
}

void OptionsTest::readsOffsets() {
    QFETCH(QString, text);
    QFETCH(int, seconds);
    QFETCH(bool, right);
    const auto result = parse({"--offset", text.toStdString(), "--out", "d", "p.jpg"});
    QCOMPARE(std::holds_alternative<Options>(result), right);
    if (right) {
        QCOMPARE(std::get<Options>(result).offset.count(), std::int64_t(seconds));
    }
}

void OptionsTest::refusesWrongUsage_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("says");
    const auto row = [](const char *name, QStringList arguments, const char *says) {
        QTest::newRow(name) << arguments << QString::fromLatin1(says);
    };
    const QString out = QStringLiteral("--out=d");
    row("nothing", {}, "which photos");
    row("no folder", {QStringLiteral("a.jpg")}, "--out");
    row("unknown option", {out, QStringLiteral("--fast"), QStringLiteral("a.jpg")}, "--fast");
    row("unknown letter", {out, QStringLiteral("-x"), QStringLiteral("a.jpg")}, "-x");
    row("value missing", {QStringLiteral("a.jpg"), QStringLiteral("--out")}, "--out wants");
    row("value too many", {out, QStringLiteral("--json=yes"), QStringLiteral("a.jpg")}, "--json");
    row("reading", {out, QStringLiteral("--logs=strict"), QStringLiteral("a.jpg")}, "strict");
    row("lane", {out, QStringLiteral("--lane=fast"), QStringLiteral("a.jpg")}, "fast");
    row("name with a folder", {out, QStringLiteral("--name=a/b"), QStringLiteral("a.jpg")},
        "--name");
    row("empty name", {out, QStringLiteral("--name="), QStringLiteral("a.jpg")}, "--name");
}

void OptionsTest::refusesWrongUsage() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, says);
    std::vector<std::string> bytes;
    for (const QString &argument : arguments) {
        bytes.push_back(argument.toStdString());
    }
    const auto result = parse(bytes);
    QVERIFY(std::holds_alternative<Usage>(result));
    QVERIFY(std::get<Usage>(result).wrong);
    const QString text = QString::fromStdString(std::get<Usage>(result).text);
    QVERIFY2(text.contains(says), qPrintable(text));
}

void OptionsTest::takesEverythingInAnyOrder() {
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

QTEST_APPLESS_MAIN(OptionsTest)
#include "options_test.moc"
