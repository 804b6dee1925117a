// How soon the map page can be called, against an empty page in the same engine, and how long its
// scripts keep it from anything else while 100,000 points are looked at.

#include "ratio.h"
#include "services/local_server.h"

#include <QApplication>
#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineView>

#include <algorithm>
#include <array>
#include <limits>
#include <stdexcept>
#include <vector>

using namespace pinmora;

namespace {

/// Milliseconds; a step of a pan or a zoom that takes longer is felt.
constexpr double longestStep = 50;
constexpr double longestFirst = 300;

/// Run in a page before its own scripts. `called` is when it could be called, in milliseconds from
/// the start of the navigation; `spent` adds up what scripts take.
const QString listener = QStringLiteral(R"(
    var called = 0, loaded = 0, spent = 0, latest = 0;
    new MutationObserver((changes, observer) => {
        if (typeof addNewMarkerToMap === "function") {
            called = performance.now();
            observer.disconnect();
        }
    }).observe(document, {childList: true, subtree: true});
    addEventListener("load", () => { loaded = performance.now(); });

    const wait = setTimeout, frame = requestAnimationFrame;
    let within = 0;
    function timed(work) {
        return function (...given) {
            const start = performance.now();
            ++within;
            try {
                return work.apply(this, given);
            } finally {
                latest = performance.now();
                if (--within === 0) {
                    spent += latest - start;
                }
            }
        };
    }
    setTimeout = (work, ...given) => wait(timed(work), ...given);
    requestAnimationFrame = work => frame(timed(work));
    const listeners = new WeakMap();
    const {addEventListener: add, removeEventListener: remove} = EventTarget.prototype;
    EventTarget.prototype.addEventListener = function (type, listener, options) {
        if (typeof listener === "function" && !listeners.has(listener)) {
            listeners.set(listener, timed(listener));
        }
        return add.call(this, type, listeners.get(listener) ?? listener, options);
    };
    EventTarget.prototype.removeEventListener = function (type, listener, options) {
        return remove.call(this, type, listeners.get(listener) ?? listener, options);
    };

    /** Milliseconds of scripts for this and all that follows, until nothing does any more. */
    function measured(work, done) {
        spent = 0;
        timed(work)();
        const settled = () => performance.now() - latest > 400 ? done(spent) : wait(settled, 50);
        wait(settled, 50);
    }

    function feedJourney(points) {
        const track = {number: 1, lat: [], lon: [], time: []};
        let [lat, lon, course, random] = [47.3, 8.4, 0.6, 1];
        for (let i = 0; i < points; ++i) {
            random = (random * 16807) % 2147483647;
            course += random / 2147483647 - 0.5;
            lat += Math.sin(course) * 0.00005;
            lon += Math.cos(course) * 0.00007;
            track.lat.push(lat);
            track.lon.push(lon);
            track.time.push(1212345678 + i);
        }
        const detail = JSON.stringify({kind: "tracks", tracks: [track]});
        return () => document.dispatchEvent(new CustomEvent("pinmora-feed", {detail}));
    }

    function press(key, keyCode) {
        const event = new KeyboardEvent("keydown", {key, keyCode, which: keyCode, bubbles: true});
        return () => document.getElementById("map").dispatchEvent(event);
    }
)");

class Browser {
public:
    Browser() {
        page_ = new QWebEnginePage(&profile_, &view_);
        QWebEngineScript script;
        script.setInjectionPoint(QWebEngineScript::DocumentCreation);
        script.setWorldId(QWebEngineScript::MainWorld);
        script.setSourceCode(listener);
        page_->scripts().insert(script);
        view_.setPage(page_);
        view_.resize(1000, 700);
        view_.show();
    }
    ~Browser() { delete page_; } // before its profile
    Browser(const Browser &) = delete;
    Browser &operator=(const Browser &) = delete;

    void load(const QString &address) {
        QEventLoop loop;
        const auto connection = QObject::connect(page_, &QWebEnginePage::loadFinished, &loop,
                                                 [&loop](bool ok) { loop.exit(ok ? 0 : 1); });
        page_->load(QUrl(address));
        const bool failed = loop.exec() != 0;
        QObject::disconnect(connection);
        if (failed) {
            throw std::runtime_error("the page does not load");
        }
    }

    QVariant ask(const QString &script) {
        QVariant answer;
        QEventLoop loop;
        page_->runJavaScript(script, [&](const QVariant &value) {
            answer = value;
            loop.quit();
        });
        loop.exec();
        return answer;
    }

    /// Milliseconds of script time of a function, and of what it leads to.
    double measured(const char *function) {
        ask(QStringLiteral("var result = null; measured(%1, time => { result = time; }); 0")
                .arg(QLatin1String(function)));
        for (;;) {
            const QVariant result = ask(QStringLiteral("result"));
            if (result.isValid() && !result.isNull()) {
                return result.toDouble();
            }
            QEventLoop loop;
            QTimer::singleShot(50, &loop, &QEventLoop::quit);
            loop.exec();
        }
    }

private:
    QWebEngineProfile profile_;
    QWebEngineView view_;
    QWebEnginePage *page_ = nullptr;
};

/// Serves a page with nothing in it.
class EmptyPage : public QTcpServer {
public:
    EmptyPage() {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *const socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [socket] {
                socket->readAll();
                socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Length: 15\r\n"
                              "\r\n<!doctype html>");
            });
        });
    }
    QString address() const { return QStringLiteral("http://127.0.0.1:%1/").arg(serverPort()); }
};

void measure(bench::Report &report) {
    LocalServer server({.tileServer = "none"});
    const QString map =
        QString::fromStdString(server.address()) + QStringLiteral("/maps/index3.php?w=434&h=400");
    const EmptyPage empty;
    Browser browser;
    double called = std::numeric_limits<double>::infinity();
    double yardstick = called;
    for (int run = 0; run < 7; ++run) {
        browser.load(empty.address());
        yardstick = std::min(yardstick, browser.ask(QStringLiteral("loaded")).toDouble());
        browser.load(map);
        called = std::min(called, browser.ask(QStringLiteral("called")).toDouble());
    }
    std::printf("empty page %.1f ms, functions %.1f ms\n", yardstick, called);
    report.atMost("map functions / empty page", called / yardstick, 2);

    // Each step as it is on a page that has not seen that level yet, at its least disturbed.
    const std::array steps{"press('+', 187)", "press('+', 187)", "press('+', 187)",
                           "press('+', 187)", "press('-', 189)", "press('-', 189)",
                           "press('-', 189)", "press('-', 189)", "press('-', 189)"};
    const double never = std::numeric_limits<double>::infinity();
    double first = never;
    std::vector<double> zooms(steps.size(), never);
    std::vector<double> pans(steps.size(), never);
    for (int run = 0; run < 3; ++run) {
        browser.load(map);
        browser.ask(QStringLiteral("document.getElementById('map').focus()"));
        first = std::min(first, browser.measured("feedJourney(100000)"));
        for (std::size_t step = 0; step < steps.size(); ++step) {
            zooms[step] = std::min(zooms[step], browser.measured(steps[step]));
            pans[step] = std::min(pans[step], browser.measured("press('ArrowRight', 39)"));
        }
    }
    const double zoom = *std::max_element(zooms.begin(), zooms.end());
    const double pan = *std::max_element(pans.begin(), pans.end());
    report.atMost("100,000 points shown first, ms", first, longestFirst);
    report.atMost("zoom step, 100,000 points, ms", zoom, longestStep);
    report.atMost("pan step, 100,000 points, ms", pan, longestStep);
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return bench::run(measure);
}
