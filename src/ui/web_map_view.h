#pragma once

#include "outlets/drag_drop_area.h"
#include "outlets/map_view.h"
#include "ui/map_page.h"

#include <QTimer>

#include <memory>
#include <string>
#include <vector>

class QWebEngineLoadingInfo;
class QWebEngineProfile;
class QWebEngineView;

namespace pinmora {

class MapWebPage;
class PageBridge;

/// The page of a map view in a web engine. Links open outside; photos of the list may be dropped
/// on it, files that are dropped are the window's. Only the page that was asked for, and others of
/// its origin, hear anything of the program and are heard.
class WebMapView : public MapPage {
    Q_OBJECT

public:
    /// The view must outlive it.
    explicit WebMapView(MapView &view, QWidget *parent = nullptr);
    ~WebMapView() override;
    WebMapView(const WebMapView &) = delete;
    WebMapView &operator=(const WebMapView &) = delete;

    void begin() override;
    void loadAgain() override { load(request_); }

protected:
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    enum class State {
        Empty,
        Loading,
        Loaded,
        Elsewhere ///< the page has led to one of another origin
    };

    void makePage();
    void obey(const MapView::Command &command);
    void load(const PageRequest &request);
    void navigate();
    void run(const std::string &script);
    void loadingChanged(const QWebEngineLoadingInfo &info);
    void arrive();
    void finish(bool ok);
    void welcome();
    void sendLook();

    MapView &view_;
    std::shared_ptr<QWebEngineProfile> profile_;
    QWebEngineView *browser_;
    MapWebPage *page_ = nullptr;
    std::unique_ptr<PageBridge> bridge_;
    QTimer navigation_; ///< in the turn after a load has been asked for
    QTimer timeout_;
    QTimer arrival_; ///< once more, of a page that came in the middle of long work
    PageRequest request_;
    std::string publishedName_; ///< under which the page is to find the controller
    State state_ = State::Empty;
    bool hasCrashed_ = false;
    bool isComplete_ = false;          ///< the document under way has been loaded
    bool isListening_ = false;         ///< its end of the channel is up
    std::vector<std::string> waiting_; ///< scripts that came while the page was being loaded
    std::string lastScript_;           ///< of this turn of the event loop
    dragDropArea dropArea_;
};

/// For MapPane.
MapPage *makeWebMapView(MapView &view, QWidget *parent);

} // namespace pinmora
