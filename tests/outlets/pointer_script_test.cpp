#include "outlets/pointer_script.h"
#include "rows.h"

using namespace pinmora;

class PointerScriptTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void positions_data() {
        // arguments: "": no numbers
        const auto row = test::rowsByValue<std::string, std::string, std::string>();

        row("47.0", "8", "47.0,8");
        row(" -47.5 ", "+.5", "-47.5,+.5");
        row("07.50", "-008.", "7.50,-8.");
        row("00.5", "000", "0.5,0");
        for (const char *unfit : {"-.", "4.7.1", "4 7", "1e2", "47,5", "0x10", "8);alert(1", "nan",
                                  "inf", "--1", "1-", "47\u2028"}) {
            row(unfit, "8", "");
            row("47", unfit, "");
        }
    }

    void positions() {
        const auto [lat, lon, arguments] = test::fetch<std::string, std::string, std::string>();
        const bool fit = !arguments.empty();
        QCOMPARE(pointerScript(lat, lon, 7),
                 fit ? "movePointer(" + arguments + ",7,'')" : "removePointer()");
        QCOMPARE(newMarkerScript(lat, lon, 7),
                 fit ? "addNewMarkerToMap(" + arguments + ",7)" : "addNewMarkerToMap(0,0,1)");
    }

    void noPositionIsNoPlaceButAPlaceToBegin() {
        QCOMPARE(pointerScript("", "8"), "removePointer()");
        QCOMPARE(pointerScript("47", "", 7, "a"), "removePointer()");
        QCOMPARE(newMarkerScript("", "", 4), "addNewMarkerToMap(0,0,4)");
    }

    void labels_data() {
        const auto row = test::rows<std::string, std::string>();
        row("plain", "IMG_1", "IMG_1");
        row("script", "');alert(1)//", "\\x27);alert(1)//");
        row("escapes", "\\'\"</a\n", "\\x5c\\x27\\x22\\x3c/a\\x0a");
        row("line ends", "Zürich\u2028\u2029\u2027", "Zürich\\u2028\\u2029\u2027");
        row("cut off", "a\xE2\x80", "a\xE2\x80");
    }

    void labels() {
        const auto [label, quoted] = test::fetch<std::string, std::string>();
        QCOMPARE(pointerScript("1", "2", 3, label), "movePointerWithZoom(1,2,3,'" + quoted + "')");
    }
};

QTEST_APPLESS_MAIN(PointerScriptTest)
#include "pointer_script_test.moc"
