#pragma once

#include "outlets/map_view.h"
#include "ui/page_server.h"
#include "ui/web_map_view.h"

#include <QSignalSpy>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace pinmora {

/// Notes what it hears and what is done to it: scripts, drawing, and what is drawn.
inline const QByteArray listener = R"(<script>
    window.heard = [];
    const hear = what => { heard[heard.length] = what; };
    document.addEventListener("pinmora-feed", e => hear("feed " + e.detail));
    window.movePointer = argument => hear("movePointer " + argument);
</script>)";

/// A map view with its page, on a server with one page or more.
struct BridgeDesk {
    explicit BridgeDesk(const QByteArray &page = {}) {
        server.pages["/map"] = listener + page;
        make();
    }
    void make() {
        widget = std::make_unique<WebMapView>(view);
        widget->resize(300, 200);
        widget->show();
        finished = std::make_unique<QSignalSpy>(widget.get(), &MapPage::loadFinished);
        widget->begin();
    }
    void load() {
        view.load({.address = (server.origin() + QStringLiteral("/map?a=b")).toStdString()});
    }
    /// In the order of a start: the page is asked for before the name is given.
    void start() {
        load();
        view.publish("controlObj");
        arrive(1);
    }
    void arrive(int times) {
        if (!QTest::qWaitFor([&] { return finished->size() >= times; }, 30'000)) {
            qFatal("the page does not load");
        }
    }
    QVariant ask(const QString &script) {
        std::optional<QVariant> answer;
        page().runJavaScript(script, [&](const QVariant &value) { answer = value; });
        if (!QTest::qWaitFor([&] { return answer.has_value(); }, 30'000)) {
            qFatal("the page does not answer");
        }
        return *answer;
    }
    QStringList heard() { return ask(QStringLiteral("heard")).toStringList(); }
    QWebEnginePage &page() { return *widget->findChild<QWebEngineView *>()->page(); }
    /// Whether what the page has said until now has come; true unless it says no more at all.
    bool saysTheLast() {
        const std::size_t before = calls.size();
        ask(QStringLiteral("controlObj.newMarker('the last'), 0"));
        const bool said = QTest::qWaitFor(
            [&] { return calls.size() > before && calls.back() == "newMarker 'the last'"; });
        if (said) {
            calls.pop_back();
        }
        return said;
    }

    PageServer server;
    MapView view;
    std::vector<std::string> calls; ///< "FUNCTION NUMBER" or "FUNCTION 'TEXT'"
    Connection calling = view.called.connect([this](const PageCall &call) {
        const auto *const text = std::get_if<std::string>(&call.argument);
        calls.push_back(call.function + " " +
                        (text ? "'" + *text + "'"
                              : QByteArray::number(std::get<double>(call.argument)).toStdString()));
    });
    int loads = 0;
    Connection loading = view.loaded.connect([this] {
        ++loads;
        view.feed(R"({"kind":"drawing"})");
        view.evaluate("movePointer(" + std::to_string(loads) + ")");
    });
    std::unique_ptr<WebMapView> widget;
    std::unique_ptr<QSignalSpy> finished;
};

} // namespace pinmora
