#include "services/local_server.h"
#include "ui/bridge_desk.h"
#include "ui/sheet_redraw.h"

#include <QElapsedTimer>

using namespace pinmora;

class PageCallsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pageCanReachTheThreeFunctionsOnly();
    void calls_data();
    void calls();
    void earlyCallsArrive();
    void tamperingChangesNothing();
    void aFloodIsSurvived();
    void workIsNotBrokenInto_data();
    void workIsNotBrokenInto();
    void frameGetsNothing();
    void cleanupTestCase() { desk_.reset(); }

private:
    std::unique_ptr<BridgeDesk> desk_; ///< one for all rows of calls()
};

/// Of the program, nothing but one frozen object with three functions that lead nowhere.
void PageCallsTest::pageCanReachTheThreeFunctionsOnly() {
    BridgeDesk desk(R"(<script>
        // What a listener can find out about those who call it.
        window.callers = [];
        document.addEventListener("pinmora-feed", () => {
            const before = Error.prepareStackTrace;
            Error.prepareStackTrace = (error, sites) => sites.map(
                site => [site.getFunction(), site.getThis(), site.getEvalOrigin()]);
            callers = new Error().stack;
            Error.prepareStackTrace = before;
        });
    </script>)");
    desk.start();
    QTRY_VERIFY(!desk.heard().isEmpty());
    const QString wrong = QStringLiteral(R"((() => {
        const wrong = [];
        const expect = (what, yes) => { if (!yes) wrong.push(what); };
        const expectThrow = (what, act) => {
            try { act(); wrong.push(what); } catch (e) { expect(what, e instanceof TypeError); }
        };
        "use strict";
        for (const name of ["qt", "QWebChannel", "webChannelTransport", "calls", "drawing"]) {
            expect(name, !(name in window) && !(name in document));
        }
        expect("names", Reflect.ownKeys(controlObj).join() ===
               "latLonJavascript,zoomChangeJavascript,newMarker");
        expect("prototype", Object.getPrototypeOf(controlObj) === null);
        expect("frozen", Object.isFrozen(controlObj));
        for (const name of ["deleteLater", "destroyed", "objectName", "mapLoadComplete", "toString",
                            "constructor", "__proto__"]) {
            expect(name, controlObj[name] === undefined);
        }
        for (const name of Reflect.ownKeys(controlObj)) {
            expect(name + " frozen", Object.isFrozen(controlObj[name]));
            expect(name + " keys", Reflect.ownKeys(controlObj[name]).join() === "length,name");
            expect(name + " prototype",
                   Object.getPrototypeOf(controlObj[name]) === Function.prototype);
            expectThrow(name + " construct", () => new controlObj[name]("1"));
        }
        window.controlObj = {};
        expect("replaced", Object.isFrozen(controlObj) && "newMarker" in controlObj);
        expect("deleted", !(delete window.controlObj));
        expectThrow("redefined",
                    () => Object.defineProperty(window, "controlObj", { value: 1 }));
        expect("callers", callers.length > 0);
        for (const [called, on] of callers) {
            expect("caller " + called, called === undefined || window.Function === called.constructor);
            expect("this " + on, on === undefined || on === document || on === window);
        }
        return wrong;
    })())");
    QCOMPARE(desk.ask(wrong).toStringList(), QStringList());
}

void PageCallsTest::calls_data() {
    QTest::addColumn<QString>("script");
    QTest::addColumn<std::string>("call"); // "": none
    const auto row = [](const char *script, const std::string &call) {
        QTest::newRow(script) << QString::fromUtf8(script) << call;
    };
    row("controlObj.latLonJavascript('51.50123:-0.12463:14')",
        "latLonJavascript '51.50123:-0.12463:14'");
    row("controlObj.zoomChangeJavascript(12.5)", "zoomChangeJavascript 12.5");
    row("controlObj.zoomChangeJavascript(-0)", "zoomChangeJavascript 0");
    row("controlObj.newMarker('a b  ü\\u0000\\n')",
        "newMarker 'a b  ü" + std::string(1, 0) + "\n'");
    row("controlObj.newMarker('')", "newMarker ''");
    row("controlObj.latLonJavascript('a'.repeat(200))",
        "latLonJavascript '" + std::string(200, 'a') + "'");
    row("controlObj.latLonJavascript('a'.repeat(201))", "");
    row("controlObj.latLonJavascript('a'.repeat(100000000))", "");
    row("controlObj.latLonJavascript()", "");
    row("controlObj.latLonJavascript({toString: () => '1:2:3'})", "");
    row("controlObj.latLonJavascript(['1:2:3'])", "");
    row("controlObj.latLonJavascript(new String('1:2:3'))", "");
    row("controlObj.zoomChangeJavascript(NaN)", "");
    row("controlObj.zoomChangeJavascript(-Infinity)", "");
    row("controlObj.zoomChangeJavascript(12n)", "");
    row("controlObj.zoomChangeJavascript(Symbol())", "");
    row("controlObj.zoomChangeJavascript(null)", "");
    const auto forged = [&row](const std::string &detail, const std::string &call) {
        row(("document.dispatchEvent(new CustomEvent('pinmora-call', {detail: " + detail + "}))")
                .c_str(),
            call);
    };
    forged("'string f x'", "f 'x'"); // whoever hears it knows no such function
    forged("'object f x'", "");
    forged("'number f 1x'", "");
    forged("'number f inf'", "");
    forged("'string f'", "");
    forged("''", "");
    forged("'string ' + 'f'.repeat(41) + ' x'", "");
    forged("'string f ' + 'x'.repeat(100000)", "");
    forged("{toString: () => 'string f x', length: 3}", "");
    forged("['string f x']", "");
    forged("7", "");
}

void PageCallsTest::calls() {
    QFETCH(QString, script);
    QFETCH(std::string, call);
    if (!desk_) {
        desk_ = std::make_unique<BridgeDesk>();
        desk_->start();
    }
    desk_->calls.clear();
    desk_->ask(QStringLiteral("try { %1 } catch (e) { hear(String(e)) } 0").arg(script));
    QVERIFY(desk_->saysTheLast());
    QCOMPARE(desk_->calls, call.empty() ? std::vector<std::string>() : std::vector{call});
}

void PageCallsTest::earlyCallsArrive() {
    BridgeDesk desk("<script>controlObj.latLonJavascript('1:2:3');"
                    "controlObj.zoomChangeJavascript(4);</script>");
    desk.start();
    QVERIFY(desk.saysTheLast());
    QCOMPARE(desk.calls,
             (std::vector<std::string>{"latLonJavascript '1:2:3'", "zoomChangeJavascript 4"}));
}

void PageCallsTest::tamperingChangesNothing() {
    BridgeDesk desk(R"(<form name="addEventListener"><input name="dispatchEvent"></form>
    <form name="dispatchEvent"></form><script>
        window.seen = [];
        const spy = name => function () { seen[seen.length] = name; };
        const prototypes = [Object, Array, String, Number, Function].map(c => c.prototype);
        const methods = ["toString", "toJSON", "valueOf", "call", "apply", "bind", "push", "concat",
                         "splice", Symbol.iterator];
        const fields = ["bubbles", "cancelable", "composed", "get", "set", "value"];
        for (let p = 0; p < prototypes.length; ++p) {
            for (let m = 0; m < methods.length; ++m) {
                prototypes[p][methods[m]] = spy(methods[m]);
            }
        }
        for (let f = 0; f < fields.length; ++f) {
            const trap = { __proto__: null, get: spy(fields[f]), set: spy(fields[f]) };
            Object.defineProperty(Object.prototype, fields[f], trap);
        }
        window.CustomEvent = spy("CustomEvent");
        EventTarget.prototype.dispatchEvent = spy("dispatchEvent");
        EventTarget.prototype.addEventListener = spy("addEventListener");
        window.tampered = true;
    </script>)");
    desk.start();
    QVERIFY(desk.ask(QStringLiteral("tampered")).toBool());
    desk.ask(QStringLiteral("seen.length = 0; controlObj.latLonJavascript('1:2:3'); 0"));
    QVERIFY(desk.saysTheLast());
    QCOMPARE(desk.calls, std::vector<std::string>{"latLonJavascript '1:2:3'"});
    QCOMPARE(desk.ask(QStringLiteral("seen.length")).toInt(), 0);
    desk.view.feed("still heard");
    QTRY_VERIFY(desk.heard().contains(QStringLiteral("feed still heard")));
}

void PageCallsTest::aFloodIsSurvived() {
    BridgeDesk desk;
    desk.start();
    desk.ask(QStringLiteral("for (let i = 0; i < 10000; ++i) controlObj.zoomChangeJavascript(i);"
                            "for (let i = 0; i < 10000; ++i) controlObj.latLonJavascript("
                            "'x'.repeat(1000)); 0"));
    QTRY_COMPARE_WITH_TIMEOUT(desk.calls.size(), 10'000U, 30'000);
    QCOMPARE(desk.calls.back(), std::string("zoomChangeJavascript 9999"));
    QVERIFY(desk.saysTheLast());
}

void PageCallsTest::workIsNotBrokenInto_data() {
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("sign"); // the page's title when it is done
    QTest::addColumn<int>("calls");
    QTest::addColumn<int>("loads");
    QTest::newRow("calls") << QStringLiteral("controlObj.newMarker(1); controlObj.newMarker(2);"
                                             "setTimeout(() => { document.title = 'said' }, 100)")
                           << QStringLiteral("said") << 2 << 0;
    QTest::newRow("a new document")
        << QStringLiteral("setTimeout(() => location.reload())") << QString() << 0 << 1;
}

/// What a page says or becomes while long work draws itself waits until the work is over.
void PageCallsTest::workIsNotBrokenInto() {
    QFETCH(QString, script);
    QFETCH(QString, sign);
    QFETCH(int, calls);
    QFETCH(int, loads);
    LocalServer server({.tileServer = "none"}); // answers meanwhile
    BridgeDesk desk;
    desk.view.load({.address = server.address() + "/maps/index3.php"});
    desk.view.publish("controlObj");
    desk.arrive(1);
    desk.saysTheLast();
    desk.calls.clear();
    desk.loads = 0;
    bool isDone = false;
    const QObject here;
    connect(&desk.page(), &QWebEnginePage::titleChanged, &here,
            [&](const QString &title) { isDone = isDone || title == sign; });
    connect(&desk.page(), &QWebEnginePage::loadFinished, &here,
            [&] { isDone = isDone || sign.isEmpty(); });
    desk.page().runJavaScript(script);
    QElapsedTimer work;
    for (work.start(); !isDone && work.elapsed() < 30'000;) {
        redrawDuringWork(true);
    }
    QVERIFY(isDone);
    QCOMPARE(desk.calls.size(), 0U);
    QCOMPARE(desk.loads, 0);
    QTRY_COMPARE(static_cast<int>(desk.calls.size()), calls);
    QTRY_COMPARE(desk.loads, loads);
}

void PageCallsTest::frameGetsNothing() {
    BridgeDesk desk("<iframe src='/frame' onload='window.framed = [frames[0].location.pathname, "
                    "typeof frames[0].controlObj, typeof frames[0].qt].join()'></iframe>");
    desk.server.pages["/frame"] = "<p>";
    desk.start();
    QTRY_COMPARE(desk.ask(QStringLiteral("window.framed")).toString(),
                 QStringLiteral("/frame,undefined,undefined"));
    QCOMPARE(desk.loads, 1);
}

QTEST_MAIN(PageCallsTest)
#include "page_calls_test.moc"
