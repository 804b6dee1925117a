#include "ui/web_map_view.h"

#include "ui/theme.h"

#include <QDesktopServices>
#include <QUrl>
#include <QVBoxLayout>
#include <QWebEngineHistory>
#include <QWebEngineHttpRequest>
#include <QWebEngineLoadingInfo>
#include <QWebEngineNewWindowRequest>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineView>

#include <utility>

namespace pinmora {

namespace {

void openOutside(const QUrl &address) {
    if (address.scheme() == QLatin1String("https") || address.scheme() == QLatin1String("http")) {
        QDesktopServices::openUrl(address);
    }
}

/// A page that stays what it is: whatever leads elsewhere opens outside.
class MapWebPage : public QWebEnginePage {
public:
    MapWebPage(QWebEngineProfile *profile, QObject *parent) : QWebEnginePage(profile, parent) {
        setBackgroundColor(colours().window);
        connect(
            this, &QWebEnginePage::newWindowRequested, this,
            [](const QWebEngineNewWindowRequest &request) { openOutside(request.requestedUrl()); });
    }

protected:
    bool acceptNavigationRequest(const QUrl &address, NavigationType type,
                                 bool isMainFrame) override {
        if (isMainFrame &&
            (type == NavigationTypeLinkClicked || type == NavigationTypeFormSubmitted)) {
            openOutside(address);
            return false;
        }
        return true;
    }
};

} // namespace

WebMapView::WebMapView(MapView &view, QWidget *parent)
    : MapPage(parent), view_(view), browser_(new QWebEngineView(this)) {
    // Without a name: nothing is written to disk.
    auto *profile = new QWebEngineProfile(browser_);
    auto *page = new MapWebPage(profile, browser_);
    page->settings()->setAttribute(QWebEngineSettings::PluginsEnabled, false);
    page->settings()->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    browser_->setPage(page);
    browser_->setContextMenuPolicy(Qt::NoContextMenu);
    browser_->setAcceptDrops(false);
    browser_->setAccessibleName(tr("Map"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(browser_);
    timeout_.setSingleShot(true);
    connect(&timeout_, &QTimer::timeout, this, [this] {
        browser_->stop();
        finish(false);
    });
    connect(page, &QWebEnginePage::loadingChanged, this, &WebMapView::loadingChanged);
    connect(browser_, &QWebEngineView::renderProcessTerminated, this, [this] {
        state_ = State::Loading;
        finish(false);
    });
}

WebMapView::~WebMapView() {
    view_.detach();
    // The page must go before its profile, and both before the view.
    delete browser_->page();
}

void WebMapView::begin() {
    view_.attach([this](const MapView::Command &command) { obey(command); });
}

void WebMapView::obey(const MapView::Command &command) {
    if (const auto *request = std::get_if<PageRequest>(&command)) {
        load(*request);
    } else if (const auto *script = std::get_if<MapView::Script>(&command)) {
        run(script->text);
    } else if (const auto *published = std::get_if<MapView::PublishedName>(&command)) {
        publishedName_ = published->name;
    }
}

void WebMapView::load(const PageRequest &request) {
    request_ = request;
    waiting_.clear();
    state_ = State::Loading;
    Q_EMIT loadStarted();
    timeout_.start(request.timeout);
    QWebEngineHttpRequest http(QUrl(QString::fromStdString(request.address)));
    if (request.ignoresCache) {
        http.setHeader("Cache-Control", "no-cache");
        http.setHeader("Pragma", "no-cache");
    }
    browser_->load(http);
}

/// Where no page has been asked for, or none could be loaded, nobody is there to hear it.
void WebMapView::run(const std::string &script) {
    if (state_ == State::Loading) {
        waiting_.push_back(script);
    } else if (state_ == State::Loaded) {
        browser_->page()->runJavaScript(QString::fromStdString(script));
    }
}

/// A load that is given up, for its time or for another load, is told of late: it may seem to be
/// the end of that other one.
void WebMapView::loadingChanged(const QWebEngineLoadingInfo &info) {
    if (info.status() == QWebEngineLoadingInfo::LoadSucceededStatus ||
        info.status() == QWebEngineLoadingInfo::LoadFailedStatus) {
        finish(info.status() == QWebEngineLoadingInfo::LoadSucceededStatus);
    }
}

void WebMapView::finish(bool ok) {
    if (state_ != State::Loading) {
        return; // it has been given up, or a frame of the page has been loaded again
    }
    timeout_.stop();
    state_ = ok ? State::Loaded : State::Empty;
    for (const std::string &script : std::exchange(waiting_, {})) {
        run(script);
    }
    browser_->history()->clear();
    Q_EMIT loadFinished(ok);
}

MapPage *makeWebMapView(MapView &view, QWidget *parent) {
    return new WebMapView(view, parent);
}

} // namespace pinmora
