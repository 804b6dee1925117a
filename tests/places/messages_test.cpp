#include "places/place_answer.h"
#include "places/soap_envelope.h"
#include "places/test_service.h"

#include <QTest>

using namespace pinmora;

/// What is sent to a service, and what is understood of its answers.
class MessagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void envelopes_data();
    void envelopes();
    void positionsThatCanBeAsked_data();
    void positionsThatCanBeAsked();
    void answers_data();
    void answers();
    void distances_data();
    void distances();
};

void MessagesTest::envelopes_data() {
    QTest::addColumn<std::string>("nameSpace");
    QTest::addColumn<std::string>("lat");
    QTest::addColumn<std::string>("lon");
    QTest::addColumn<QByteArray>("middle");
    const auto row = [](const char *name, const char *space, const char *lat, const char *lon,
                        const char *middle) {
        QTest::newRow(name) << std::string(space) << std::string(lat) << std::string(lon)
                            << QByteArray(middle);
    };
    row("as stored", "urn:places/", "+47.3825", "-008.50",
        "xmlns=\"urn:places/\"><point><Lon>-008.50</Lon><Lat>+47.3825</Lat></point>");
    row("escaped", "urn:a&\"b/", "<1>", "&",
        "xmlns=\"urn:a&amp;&quot;b/\"><point><Lon>&amp;</Lon><Lat>&lt;1&gt;</Lat></point>");
}

void MessagesTest::envelopes() {
    QFETCH(std::string, nameSpace);
    QFETCH(std::string, lat);
    QFETCH(std::string, lon);
    QFETCH(QByteArray, middle);
    QCOMPARE(QByteArray::fromStdString(placeEnvelope(nameSpace, {lat, lon})),
             "<?xml version=\"1.0\" encoding=\"utf-8\"?><soap:Envelope "
             "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
             "xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\" "
             "xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\"><soap:Body>"
             "<ConvertLonLatPtToNearestPlace " +
                 middle + "</ConvertLonLatPtToNearestPlace></soap:Body></soap:Envelope>");
}

void MessagesTest::positionsThatCanBeAsked_data() {
    QTest::addColumn<std::string>("lat");
    QTest::addColumn<bool>("can");
    QTest::newRow("a number") << std::string("-33.85") << true;
    QTest::newRow("none") << std::string() << false;
    QTest::newRow("with its unit") << std::string("47.1 N") << false;
    QTest::newRow("an exponent") << std::string("4e1") << false;
    QTest::newRow("markup") << std::string("1</Lat><Lat>2") << false;
}

void MessagesTest::positionsThatCanBeAsked() {
    QFETCH(std::string, lat);
    QTEST(canBeAsked({lat, "8"}), "can");
    QTEST(canBeAsked({"8", lat}), "can");
}

void MessagesTest::answers_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("names"); // "-" for what the answer lacks; "" for no answer
    const auto row = [](const char *name, const QByteArray &body, const char *names) {
        QTest::newRow(name) << body << QByteArray(names);
    };
    const auto result = &TestService::envelope;
    row("three parts", result("Zug, ZG, Switzerland"), "Zug|ZG|Switzerland");
    row("no blanks", result("Zug,ZG,Switzerland"), "Zug|ZG|Switzerland");
    row("two blanks", result("  Zug,  ZG,  CH "), " Zug| ZG| CH ");
    row("an empty part", result("Bern, , Switzerland"), "Bern||Switzerland");
    row("two parts", result("Zug, ZG"), "Zug|ZG|-");
    row("one part", result("Zug"), "Zug|-|-");
    row("nothing in it", result(""), "|-|-");
    row("four parts", result("Zug, ZG, Korea, Republic of"), "Zug|ZG|Korea");
    row("a prefix",
        "<a:ConvertLonLatPtToNearestPlaceResult xmlns:a=\"x\">A, B, C"
        "</a:ConvertLonLatPtToNearestPlaceResult>",
        "A|B|C");
    row("another name",
        "<r><ConvertLonLatPtToNearestPlaceResults>A, B, C"
        "</ConvertLonLatPtToNearestPlaceResults></r>",
        "");
    row("text before it",
        "<r>near <ConvertLonLatPtToNearestPlaceResult> A, B, C"
        "</ConvertLonLatPtToNearestPlaceResult></r>",
        "near  A|B|C");
    row("text behind it",
        "<r><ConvertLonLatPtToNearestPlaceResult>A, B, C"
        "</ConvertLonLatPtToNearestPlaceResult>, D</r>",
        "A|B|C");
    row("an element in it", result("A<i>b</i>, B, C"), "Ab|B|C");
    row("entities", result("A &amp; B &#xE9;, &lt;b&gt;, C"), "A & B é|<b>|C");
    row("an entity of its own", "<!DOCTYPE r [<!ENTITY z 'Zug'>]>" + result("&z;, B, C"),
        "Zug|B|C");
    row("an external entity",
        "<!DOCTYPE r [<!ENTITY z SYSTEM 'file:///etc/hostname'>]>" + result("&z;, B, C"), "");
    row("an external entity by name",
        "<!DOCTYPE r [<!ENTITY z SYSTEM 'CMakeLists.txt'>]>" + result("&z;, B, C"), "");
    row("an external DTD that would explain", "<!DOCTYPE r SYSTEM 'x.dtd'>" + result("&z;, B, C"),
        "");
    QByteArray laughs = "<!DOCTYPE r [<!ENTITY a0 'ha ha ha ha ha ha ha ha ha ha'>";
    for (int i = 1; i < 12; ++i) {
        const QByteArray last = "&a" + QByteArray::number(i - 1) + ";";
        laughs += "<!ENTITY a" + QByteArray::number(i) + " '" + last.repeated(10) + "'>";
    }
    row("entities without end", laughs + "]>" + result("&a11;, B, C"), "");
    const QByteArray good = result("A, B, C");
    row("cut off within", good.left(good.indexOf("B, C")), "");
    row("cut off before its end", good.left(good.indexOf("</Convert")), "");
    row("cut off behind it", good.left(good.indexOf("</R>")), "A|B|C");
    row("malformed before it", "<r>&nbsp;" + good + "</r>", "");
    row("a fault", "<s:Fault xmlns:s=\"s\"><faultstring>No</faultstring></s:Fault>", "");
    row("no XML", "Zug, ZG, Switzerland", "");
    row("bytes", QByteArray("\0\xff\xfe<", 4), "");
    row("nothing", "", "");
}

void MessagesTest::answers() {
    QFETCH(QByteArray, body);
    const std::optional<PlaceAnswer> answer = readPlaceAnswer(body.toStdString());
    QByteArrayList names;
    if (answer) {
        for (const auto &name : answer->names) {
            names << QByteArray::fromStdString(name.value_or("-"));
        }
    }
    QTEST(names.join('|'), "names");
}

void MessagesTest::distances_data() {
    QTest::addColumn<double>("metres"); // -1 for none
    const auto row = [](const char *header, double metres) { QTest::newRow(header) << metres; };
    row("0", 0);
    row("2312", 2312);
    row("20000000", 20'000'000);
    row("20040001", -1);
    row("99999999999999999999", -1);
    row("", -1);
    row("-1", -1);
    row("-0", -1);
    row("+5", -1);
    row("2312 m", -1);
    row(" 5", -1);
    row("2.5", -1);
}

void MessagesTest::distances() {
    QTEST(readPlaceDistance(QTest::currentDataTag()).value_or(-1), "metres");
}

QTEST_GUILESS_MAIN(MessagesTest)
#include "messages_test.moc"
