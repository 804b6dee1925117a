#include "outlets/pointer_script.h"

#include <QTest>

using namespace pinmora;

class PointerScriptTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void positions_data() {
        QTest::addColumn<std::string>("lat");
        QTest::addColumn<std::string>("lon");
        QTest::addColumn<std::string>("arguments"); // "": no numbers

        const auto row = [](const std::string &lat, const std::string &lon,
                            const std::string &arguments) {
            QTest::addRow("%s, %s", lat.c_str(), lon.c_str()) << lat << lon << arguments;
        };
        row("47.0", "8", "47.0,8");
        row(" -47.5 ", "+.5", "-47.5,+.5");
        row("07.50", "-008.", "7.50,-8.");
        row("00.5", "000", "0.5,0");
        row("47", "-.", "");
        row("4.7.1", "8", "");
        row("4 7", "8", "");
        row("1e2", "8", "");
        row("47,5", "8", "");
        row("0x10", "8", "");
        row("47", "8);alert(1", "");
        row("nan", "inf", "");
        row("--1", "1-", "");
        row("47\u2028", "8", "");
    }

    void positions() {
        QFETCH(std::string, lat);
        QFETCH(std::string, lon);
        QFETCH(std::string, arguments);
        const bool fit = !arguments.empty();
        QCOMPARE(pointerScript(lat, lon, 7),
                 fit ? "movePointer(" + arguments + ",7,'')" : "removePointer()");
        QCOMPARE(newMarkerScript(lat, lon, 7),
                 fit ? "addNewMarkerToMap(" + arguments + ",7)" : "addNewMarkerToMap(0,0,1)");
    }

    void noPositionIsNoPlaceButAPlaceToBegin() {
        QCOMPARE(pointerScript("", "8"), std::string("removePointer()"));
        QCOMPARE(pointerScript("47", "", 7, "a"), std::string("removePointer()"));
        QCOMPARE(newMarkerScript("", "", 4), std::string("addNewMarkerToMap(0,0,4)"));
    }

    void labels_data() {
        QTest::addColumn<std::string>("label");
        QTest::addColumn<std::string>("quoted");
        QTest::newRow("plain") << std::string("IMG_1") << std::string("IMG_1");
        QTest::newRow("script") << std::string("');alert(1)//") << std::string("\\x27);alert(1)//");
        QTest::newRow("escapes") << std::string("\\'\"</a\n")
                                 << std::string("\\x5c\\x27\\x22\\x3c/a\\x0a");
        QTest::newRow("line ends")
            << std::string("Zürich\u2028\u2029\u2027") << std::string("Zürich\\u2028\\u2029\u2027");
        QTest::newRow("cut off") << std::string("a\xE2\x80") << std::string("a\xE2\x80");
    }

    void labels() {
        QFETCH(std::string, label);
        QFETCH(std::string, quoted);
        QCOMPARE(pointerScript("1", "2", 3, label), "movePointerWithZoom(1,2,3,'" + quoted + "')");
    }
};

QTEST_APPLESS_MAIN(PointerScriptTest)
#include "pointer_script_test.moc"
