#include "rows.h"
#include "services/soap.h"

#include <variant>

using namespace pinmora;

namespace {

QByteArray envelope(const QByteArray &point, const QByteArray &prolog = {}) {
    return prolog +
           "<s:Envelope xmlns:s=\"http://schemas.xmlsoap.org/soap/envelope/\"><s:Body>"
           "<ConvertLonLatPtToNearestPlace xmlns=\"urn:pinmora:places/\">" +
           point + "</ConvertLonLatPtToNearestPlace></s:Body></s:Envelope>";
}

QByteArray point(const QByteArray &lon, const QByteArray &lat) {
    return "<point><Lon>" + lon + "</Lon><Lat>" + lat + "</Lat></point>";
}

} // namespace

class SoapTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void requests_data() {
        // result: the position, or what the fault speaks of
        const auto row = test::rows<QByteArray, std::string>();
        row("plain", envelope(point("8.5", "47.25")), "47.25 8.5");
        row("with a declaration",
            envelope(point("8.5", "47.25"), "<?xml version=\"1.0\" encoding=\"utf-8\"?>"),
            "47.25 8.5");
        row("prefixes throughout",
            "<a:Envelope xmlns:a='x'><a:Body><b:ConvertLonLatPtToNearestPlace xmlns:b='y'>"
            "<b:point><b:Lat>-1</b:Lat><b:Lon>-2</b:Lon></b:point>"
            "</b:ConvertLonLatPtToNearestPlace></a:Body></a:Envelope>",
            "-1 -2");
        row("spread out",
            "<Envelope>\n <Header><x/></Header>\n <Body>\n"
            "<ConvertLonLatPtToNearestPlace>\n" +
                point("\n 8.5 ", " 47.25\n") +
                "\n</ConvertLonLatPtToNearestPlace></Body></Envelope>",
            "47.25 8.5");
        row("signs and zeros", envelope(point("-051.7216", "+64.1835")), "64.1835 -51.7216");
        row("the edges", envelope(point("-180", "90")), "90 -180");
        QByteArray wide = QByteArray::fromHex("fffe");
        for (const char letter : envelope(point("8.5", "47.25"))) {
            wide.append(letter).append('\0');
        }
        row("UTF-16", wide, "47.25 8.5");
        row("numbers in pieces", envelope(point("8<!-- -->.<![CDATA[5]]>", "4&#55;")), "47 8.5");

        row("nothing", "", "XML");
        row("garbage", "\xff\x00garbage", "XML");
        row("cut off", envelope(point("8.5", "47.25")).chopped(30), "XML");
        row("another document", "<html/>", "point");
        row("another operation", envelope(point("1", "2")).replace("Nearest", "Farthest"), "point");
        row("outside the body", envelope(point("1", "2")).replace("Body", "Header"), "point");
        row("no latitude", envelope("<point><Lon>1</Lon></point>"), "point");
        row("empty", envelope(point("", "")), "decimal");
        row("words", envelope(point("eight", "47")), "decimal");
        row("an exponent", envelope(point("1e1", "47")), "decimal");
        row("infinite", envelope(point("inf", "nan")), "decimal");
        row("a number and more", envelope(point("8.5);alert(1)//", "47")), "decimal");
        row("elements within", envelope(point("<b>8</b>", "47")), "decimal");
        row("too far north", envelope(point("0", "90.0001")), "between");
        row("too far east", envelope(point("180.5", "0")), "between");
        row("a number without end", envelope(point(QByteArray(1'000, '1'), "0")), "XML");
        row("deep", envelope(QByteArray("<a>").repeated(20'000)), "XML");
        QByteArray laughs = "<!DOCTYPE s:Envelope [<!ENTITY a0 \"8888888888\">";
        for (int i = 1; i < 20; ++i) {
            const QByteArray inner = "&a" + QByteArray::number(i - 1) + ";";
            laughs += "<!ENTITY a" + QByteArray::number(i) + " \"" + inner.repeated(10) + "\">";
        }
        row("a billion laughs", envelope(point("&a19;", "0"), laughs + "]>"), "XML");
        row("a billion laughs elsewhere", envelope("<x>&a19;</x>" + point("1", "2"), laughs + "]>"),
            "XML");
        row("an external entity",
            envelope(point("&e;", "0"),
                     "<!DOCTYPE x [<!ENTITY e SYSTEM \"file:///etc/hostname\">]>"),
            "XML");
    }
    void requests() {
        const auto [body, result] = test::fetch<QByteArray, std::string>();
        const auto request = placeRequest({body.data(), static_cast<std::size_t>(body.size())});
        if (const auto *position = std::get_if<Position>(&request)) {
            QCOMPARE(QString(QStringLiteral("%1 %2").arg(position->lat).arg(position->lon)),
                     QString::fromStdString(result));
        } else {
            const std::string &reason = std::get<SoapFault>(request).reason;
            QVERIFY2(reason.find(result) != std::string::npos, reason.c_str());
        }
    }

    // The whole answer: clients take all text before the end of the result for its beginning.
    void response() {
        QCOMPARE(placeResponse("A&B <c>, \"D\", É", "urn:x/"),
                 "<?xml version=\"1.0\" encoding=\"utf-8\"?>"
                 "<soap:Envelope"
                 " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
                 " xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\""
                 " xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\">"
                 "<soap:Body><ConvertLonLatPtToNearestPlaceResponse xmlns=\"urn:x/\">"
                 "<ConvertLonLatPtToNearestPlaceResult>"
                 "A&amp;B &lt;c&gt;, &quot;D&quot;, É"
                 "</ConvertLonLatPtToNearestPlaceResult>"
                 "</ConvertLonLatPtToNearestPlaceResponse>"
                 "</soap:Body></soap:Envelope>");
    }
};

QTEST_APPLESS_MAIN(SoapTest)
#include "soap_test.moc"
