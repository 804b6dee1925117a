#include "ui/web_map_view.h"

#include "ui/drop_highlight.h"
#include "ui/map_web_page.h"
#include "ui/page_bridge.h"
#include "ui/photo_drag.h"
#include "ui/sheet_redraw.h"
#include "ui/theme.h"
#include "ui/web_profile.h"

#include <QDropEvent>
#include <QEvent>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <QVBoxLayout>
#include <QWebEngineHistory>
#include <QWebEngineHttpRequest>
#include <QWebEngineLoadingInfo>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include <chrono>
#include <utility>

namespace pinmora {
namespace {

constexpr std::chrono::milliseconds pauseForWork{50};

std::string jsonOf(const QJsonObject &message) {
    return QJsonDocument(message).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace

WebMapView::WebMapView(MapView &view, QWidget *parent)
    : MapPage(parent), view_(view), profile_(sharedWebProfile()),
      browser_(new QWebEngineView(this)) {
    browser_->setContextMenuPolicy(Qt::NoContextMenu);
    browser_->setAcceptDrops(false);
    browser_->setAccessibleName(tr("Map"));
    setAcceptDrops(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(browser_);
    auto *highlight = new DropHighlight(dropArea_, QString(), this);
    highlight->setStyleSheet(QStringLiteral("background: transparent")); // the map is aimed at
    navigation_.setSingleShot(true);
    connect(&navigation_, &QTimer::timeout, this, &WebMapView::navigate);
    arrival_.setSingleShot(true);
    connect(&arrival_, &QTimer::timeout, this, &WebMapView::arrive);
    timeout_.setSingleShot(true);
    connect(&timeout_, &QTimer::timeout, this, [this] {
        browser_->stop();
        finish(false);
    });
    makePage();
}

WebMapView::~WebMapView() {
    view_.detach();
    // The page must go before its profile.
    bridge_.reset();
    delete page_;
}

/// In place of the one before it, if there is one.
void WebMapView::makePage() {
    bridge_.reset();
    MapWebPage *const before = std::exchange(page_, new MapWebPage(profile_.get(), browser_));
    browser_->setPage(page_);
    delete before;
    bridge_ = std::make_unique<PageBridge>(*page_);
    connect(bridge_.get(), &PageBridge::begun, this, [this] {
        isListening_ = true;
        arrive();
    });
    connect(bridge_.get(), &PageBridge::called, this,
            [this](const PageCall &call) { view_.called.emit(call); });
    connect(page_, &QWebEnginePage::loadingChanged, this, &WebMapView::loadingChanged);
    connect(page_, &QWebEnginePage::renderProcessTerminated, this, [this] {
        hasCrashed_ = true;
        finish(false);
    });
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
    } else if (const auto *feed = std::get_if<MapView::Feed>(&command)) {
        if (state_ == State::Loaded) {
            bridge_->feed(feed->json);
        }
    }
}

void WebMapView::load(const PageRequest &request) {
    if (std::exchange(hasCrashed_, false)) {
        makePage(); // the old one's new process would have no channel
    }
    request_ = request;
    waiting_.clear();
    state_ = State::Loading;
    isComplete_ = isListening_ = false;
    Q_EMIT loadStarted();
    timeout_.start(request.timeout);
    navigation_.start();
}

/// A document has the scripts that stood before its load began: the name under which the controller
/// is published may follow the request.
void WebMapView::navigate() {
    const QUrl address(QString::fromStdString(request_.address));
    bridge_->serve(address, publishedName_);
    QWebEngineHttpRequest http(address);
    if (request_.ignoresCache) {
        http.setHeader("Cache-Control", "no-cache");
        http.setHeader("Pragma", "no-cache");
    }
    browser_->load(http);
}

/// Where no page has been asked for, or none could be loaded, nobody is there to hear it. Thousands
/// of photos that are placed together move the pointer to one place: once is enough.
void WebMapView::run(const std::string &script) {
    if (script == lastScript_) {
        return;
    }
    if (lastScript_.empty()) {
        QTimer::singleShot(0, this, [this] { lastScript_.clear(); });
    }
    lastScript_ = script;
    if (state_ == State::Loading) {
        waiting_.push_back(script);
    } else if (state_ == State::Loaded && bridge_->isAtHome()) {
        page_->runJavaScript(QString::fromStdString(script));
    }
}

/// The page may also load itself again, or lead elsewhere; until that has come to something, it is
/// spoken to as before.
void WebMapView::loadingChanged(const QWebEngineLoadingInfo &info) {
    switch (info.status()) {
    case QWebEngineLoadingInfo::LoadStartedStatus:
        isComplete_ = isListening_ = false;
        break;
    case QWebEngineLoadingInfo::LoadSucceededStatus:
        isComplete_ = true;
        arrive();
        break;
    case QWebEngineLoadingInfo::LoadFailedStatus:
        finish(false);
        break;
    case QWebEngineLoadingInfo::LoadStoppedStatus: // as where a link opens outside
        break;
    }
}

/// A page of ours is there when it can also be spoken to; one from elsewhere will not be. In the
/// middle of long work it has to wait: who hears of it may change something.
void WebMapView::arrive() {
    const bool isThere =
        isComplete_ && (isListening_ || publishedName_.empty() || !bridge_->isAtHome());
    if (isThere && isRedrawingDuringWork()) {
        timeout_.stop();
        arrival_.start(pauseForWork);
    } else if (isThere) {
        finish(true);
    }
}

void WebMapView::finish(bool ok) {
    if (state_ == State::Empty) {
        return; // it has been given up
    }
    timeout_.stop();
    arrival_.stop();
    state_ = !ok ? State::Empty : bridge_->isAtHome() ? State::Loaded : State::Elsewhere;
    if (state_ == State::Loaded) {
        welcome();
    }
    waiting_.clear();
    browser_->history()->clear();
    Q_EMIT loadFinished(ok);
}

/// What is to be drawn comes first, then what has been asked of the page meanwhile.
void WebMapView::welcome() {
    const std::vector<std::string> waiting = std::exchange(waiting_, {});
    sendLook();
    lastScript_.clear();
    view_.loaded.emit();
    lastScript_.clear();
    for (const std::string &script : waiting) {
        run(script);
    }
}

/// The colours that the page draws with.
void WebMapView::sendLook() {
    const Colours &look = colours();
    bridge_->feed(jsonOf({{QStringLiteral("kind"), QStringLiteral("look")},
                          {QStringLiteral("dark"), look.dark},
                          {QStringLiteral("window"), look.window.name()},
                          {QStringLiteral("text"), look.text.name()},
                          {QStringLiteral("quiet"), look.quietText.name()},
                          {QStringLiteral("lines"), look.line.name()},
                          {QStringLiteral("accent"), look.accent.name()},
                          {QStringLiteral("track"), look.track.name()}}));
}

void WebMapView::changeEvent(QEvent *event) {
    MapPage::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        page_->setBackgroundColor(colours().window);
        if (state_ == State::Loaded) {
            sendLook();
        }
    }
}

void WebMapView::dragEnterEvent(QDragEnterEvent *event) {
    const bool takes = state_ == State::Loaded && carriesPhotos(*event);
    dropArea_.setHasShadow(takes);
    if (takes) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    } else {
        event->ignore(); // it is the window's, or nobody's
    }
}

void WebMapView::dragLeaveEvent(QDragLeaveEvent *) {
    dropArea_.setHasShadow(false);
}

/// Which place that is, the page knows: it answers with a call.
void WebMapView::dropEvent(QDropEvent *event) {
    dropArea_.setHasShadow(false);
    const QPointF place = browser_->mapFrom(this, event->position()) / page_->zoomFactor();
    if (state_ == State::Loaded) {
        bridge_->feed(jsonOf({{QStringLiteral("kind"), QStringLiteral("drop")},
                              {QStringLiteral("x"), place.x()},
                              {QStringLiteral("y"), place.y()}}));
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

MapPage *makeWebMapView(MapView &view, QWidget *parent) {
    return new WebMapView(view, parent);
}

} // namespace pinmora
