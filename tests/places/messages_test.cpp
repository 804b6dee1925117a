#include "places/place_answer.h"
#include "places/soap_envelope.h"
#include "places/test_service.h"
#include "rows.h"

using namespace pinmora;

/// What is sent to a service, and what is understood of its answers.
class MessagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void envelopes_data() {
        const auto row = test::rows<std::string, std::string, std::string, QByteArray>();
        row("as stored", "urn:places/", "+47.3825", "-008.50",
            "xmlns=\"urn:places/\"><point><Lon>-008.50</Lon><Lat>+47.3825</Lat></point>");
        row("escaped", "urn:a&\"b/", "<1>", "&",
            "xmlns=\"urn:a&amp;&quot;b/\"><point><Lon>&amp;</Lon><Lat>&lt;1&gt;</Lat></point>");
    }

    void envelopes() {
        const auto [nameSpace, lat, lon, middle] =
            test::fetch<std::string, std::string, std::string, QByteArray>();
        QCOMPARE(QByteArray::fromStdString(placeEnvelope(nameSpace, {lat, lon})),
                 "<?xml version=\"1.0\" encoding=\"utf-8\"?><soap:Envelope "
                 "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                 "xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\" "
                 "xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\"><soap:Body>"
                 "<ConvertLonLatPtToNearestPlace " +
                     middle + "</ConvertLonLatPtToNearestPlace></soap:Body></soap:Envelope>");
    }

    void positionsThatCanBeAsked_data() {
        const auto row = test::rows<std::string, bool>();
        row("a number", "-33.85", true);
        row("none", {}, false);
        row("with its unit", "47.1 N", false);
        row("an exponent", "4e1", false);
        row("markup", "1</Lat><Lat>2", false);
    }

    void positionsThatCanBeAsked() {
        const auto [lat, can] = test::fetch<std::string, bool>();
        QCOMPARE(canBeAsked({lat, "8"}), can);
        QCOMPARE(canBeAsked({"8", lat}), can);
    }

    void answers_data() {
        // names: "-" for what the answer lacks; "" for no answer
        const auto row = test::rows<QByteArray, QByteArray>();
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
        row("an external DTD that would explain",
            "<!DOCTYPE r SYSTEM 'x.dtd'>" + result("&z;, B, C"), "");
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

    void answers() {
        const auto [body, expected] = test::fetch<QByteArray, QByteArray>();
        const std::optional<PlaceAnswer> answer = readPlaceAnswer(body.toStdString());
        QByteArrayList names;
        if (answer) {
            for (const auto &name : answer->names) {
                names << QByteArray::fromStdString(name.value_or("-"));
            }
        }
        QCOMPARE(names.join('|'), expected);
    }

    void distances_data() {
        // metres: -1 for none
        const auto row = test::rowsByValue<std::string, double>();
        row("0", 0);
        row("2312", 2312);
        row("20000000", 20'000'000);
        for (const char *none :
             {"20040001", "99999999999999999999", "", "-1", "-0", "+5", "2312 m", " 5", "2.5"}) {
            row(none, -1);
        }
    }

    void distances() {
        const auto [text, metres] = test::fetch<std::string, double>();
        QCOMPARE(readPlaceDistance(text).value_or(-1), metres);
    }
};

QTEST_GUILESS_MAIN(MessagesTest)
#include "messages_test.moc"
