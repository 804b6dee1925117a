#pragma once

#include "services/local_server.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineView>

#include <functional>
#include <memory>
#include <optional>

/// Whether a position that was told, "LAT:LON:ZOOM", is that one, to a pixel or two at its level.
inline bool isAt(const QString &told, double lat, double lon, int zoom) {
    const QStringList parts = told.split(QLatin1Char(':'));
    const double tolerance = 2 * 360.0 / 256 / (1 << zoom);
    const bool is = parts.size() == 3 && qAbs(parts[0].toDouble() - lat) < tolerance &&
                    qAbs(parts[1].toDouble() - lon) < tolerance && parts[2].toInt() == zoom;
    if (!is) {
        qWarning().noquote() << "told" << told << "not" << lat << lon << zoom;
    }
    return is;
}

/// Whether both are the same, to a pixel or two.
inline bool isSame(const QString &told, const QString &other) {
    const QStringList parts = other.split(QLatin1Char(':'));
    return parts.size() == 3 &&
           isAt(told, parts[0].toDouble(), parts[1].toDouble(), parts[2].toInt());
}

/// The map page as it is served, in a web view, with a listener in the program's place.
class PageDesk {
public:
    /// `early` is run in the page before any of its own scripts.
    explicit PageDesk(QSize size = {600, 400}, const std::string &tileServer = "none",
                      const QString &early = {})
        : server_({.tileServer = tileServer}) {
        page_ = new QWebEnginePage(&profile_, &view_);
        QWebEngineScript script;
        script.setInjectionPoint(QWebEngineScript::DocumentCreation);
        script.setWorldId(QWebEngineScript::MainWorld);
        script.setSourceCode(listener() + early);
        page_->scripts().insert(script);
        view_.setPage(page_);
        view_.resize(size);
        view_.show();
        load();
    }
    ~PageDesk() { delete page_; } // before its profile
    PageDesk(const PageDesk &) = delete;
    PageDesk &operator=(const PageDesk &) = delete;

    QString origin() { return QString::fromStdString(server_.address()); }

    void load() {
        QEventLoop loop;
        QObject::connect(page_, &QWebEnginePage::loadFinished, &loop,
                         [&loop](bool ok) { loop.exit(ok ? 0 : 1); });
        QTimer::singleShot(30'000, &loop, [&loop] { loop.exit(1); });
        page_->load(QUrl(origin() + QStringLiteral("/maps/index3.php?w=434&h=400")));
        if (loop.exec() != 0) {
            qFatal("the page does not load");
        }
    }

    /// What a script gives in the page; nothing when it fails.
    QVariant ask(const QString &script) {
        QVariant answer;
        QEventLoop loop;
        page_->runJavaScript(script, [&](const QVariant &value) {
            answer = value;
            loop.exit(0);
        });
        QTimer::singleShot(30'000, &loop, [&loop] { loop.exit(1); });
        if (loop.exec() != 0) {
            qFatal("the page does not answer");
        }
        return answer;
    }

    /// Whether this comes true in good time. The web engine needs a loop that runs: each of its
    /// many small tasks would wait for the next turn otherwise.
    static bool waitFor(const std::function<bool()> &condition, int milliseconds = 10'000) {
        QElapsedTimer timer;
        for (timer.start(); !condition();) {
            if (timer.elapsed() > milliseconds) {
                return false;
            }
            QEventLoop loop;
            QTimer::singleShot(10, &loop, &QEventLoop::quit);
            loop.exec();
        }
        return true;
    }

    /// Whether the script gives true in good time.
    bool becomes(const QString &script, int milliseconds = 10'000) {
        const bool is = waitFor([&] { return ask(script).toBool(); }, milliseconds);
        if (!is) {
            qWarning().noquote() << "not in time:" << script;
        }
        return is;
    }

    void feed(const QByteArray &json) {
        const QJsonObject detail{{QStringLiteral("detail"), QString::fromUtf8(json)}};
        ask(QStringLiteral("document.dispatchEvent(new CustomEvent('pinmora-feed', %1))")
                .arg(QString::fromUtf8(QJsonDocument(detail).toJson())));
    }

    /// What the page has told since the last question: "NAME ARGUMENT", ...
    QStringList reports() { return ask(QStringLiteral("reports.splice(0)")).toStringList(); }

    /// A real click; it has been dealt with when this returns.
    void click(QPoint at) {
        const int before = ask(QStringLiteral("clicks")).toInt();
        QTest::mouseClick(view_.focusProxy(), Qt::LeftButton, {}, at);
        if (!becomes(QStringLiteral("clicks > %1").arg(before))) {
            qFatal("the click does not arrive");
        }
    }
    /// Takes the pin at a point of it and moves it by so much; it is held then.
    void holdPin(QPoint at, QPoint by) {
        const QPoint goal = pin().value() + by;
        QTest::mousePress(view_.focusProxy(), Qt::LeftButton, {}, at);
        // The first bit tells a drag from a click, and moves nothing.
        moveHeld(at + QPoint(4, 4));
        if (!becomes(QStringLiteral("document.body.classList.contains('leaflet-dragging')"))) {
            qFatal("the drag does not begin");
        }
        moveHeld(held_ + by);
        if (!waitFor([&] { return pin() == goal; })) {
            qFatal("the pin does not follow the mouse");
        }
    }
    /// Moves the mouse with its button down.
    void moveHeld(QPoint to) {
        held_ = to;
        QWidget *const target = view_.focusProxy();
        QMouseEvent move(QEvent::MouseMove, to, target->mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(target, &move);
    }
    void release() { QTest::mouseRelease(view_.focusProxy(), Qt::LeftButton, {}, held_); }
    /// A key for what has the focus in the page; it has been dealt with when this returns.
    void key(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        const int before = ask(QStringLiteral("keys")).toInt();
        QTest::keyClick(view_.focusProxy(), key, with);
        if (!becomes(QStringLiteral("keys > %1").arg(before))) {
            qFatal("the key does not arrive");
        }
    }
    void type(const QString &text) {
        for (const QChar letter : text) {
            QTest::keyClick(view_.focusProxy(), letter.toLatin1());
        }
    }

    /// "LAT:LON:ZOOM" of a point of the view.
    QString seenAt(QPoint point) {
        const QStringList before = reports();
        feed(QStringLiteral(R"({"kind":"drop","x":%1,"y":%2})")
                 .arg(point.x())
                 .arg(point.y())
                 .toUtf8());
        const QStringList now = reports();
        ask(QStringLiteral("reports.push(...'%1'.split('|').filter(Boolean))")
                .arg(before.join(QLatin1Char('|'))));
        return now.isEmpty() ? QString() : now.last().section(QLatin1Char(' '), 1);
    }
    QString seenInMiddle() { return seenAt({view_.width() / 2, view_.height() / 2}); }
    /// Where the pin's tip is in the view; nothing when there is no pin.
    std::optional<QPoint> pin() {
        const QVariantList tip = ask(QStringLiteral(R"((() => {
            const pin = document.querySelector(".pin");
            const box = pin?.getBoundingClientRect();
            return pin ? [box.left + box.width / 2, box.bottom - 1] : [];
        })())"))
                                     .toList();
        return tip.isEmpty()
                   ? std::nullopt
                   : std::optional(QPointF(tip[0].toDouble(), tip[1].toDouble()).toPoint());
    }
    /// Whether a pixel of the view has this colour, more or less.
    bool isPainted(QPoint at, QColor colour) {
        const QColor seen = view_.grab().toImage().pixelColor(at);
        return qAbs(seen.red() - colour.red()) + qAbs(seen.green() - colour.green()) +
                   qAbs(seen.blue() - colour.blue()) <
               48;
    }
    QWebEngineView &view() { return view_; }

private:
    static QString listener() {
        return QStringLiteral(R"(
            var reports = [], clicks = 0, keys = 0, refused = [], errors = [];
            var controlObj = {
                latLonJavascript: text => reports.push(`position ${text}`),
                zoomChangeJavascript: level => reports.push(`level ${level}`),
            };
            addEventListener("mouseup", () => setTimeout(() => ++clicks), true);
            addEventListener("keyup", () => setTimeout(() => ++keys), true);
            addEventListener("error", e => errors.push(e.message));
            addEventListener("securitypolicyviolation", e => refused.push(e.violatedDirective));
        )");
    }

    pinmora::LocalServer server_;
    QWebEngineProfile profile_;
    QWebEngineView view_;
    QWebEnginePage *page_ = nullptr;
    QPoint held_;
};

/// One web view for all tests of a program, which takes long to make; each test loads the page
/// anew.
class PageDesks {
public:
    PageDesk &fresh() {
        if (!desk_) {
            desk_ = std::make_unique<PageDesk>();
        } else {
            desk_->view().resize(600, 400);
            desk_->view().activateWindow(); // another may have been in front
            desk_->view().setFocus();
            desk_->load();
        }
        return *desk_;
    }
    /// As the test before has left it.
    PageDesk &kept() { return desk_ ? *desk_ : fresh(); }
    /// Before the application ends.
    void clear() { desk_.reset(); }

private:
    std::unique_ptr<PageDesk> desk_;
};
