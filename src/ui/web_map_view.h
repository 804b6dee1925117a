#pragma once

#include "outlets/map_view.h"
#include "ui/map_page.h"

#include <QTimer>

#include <string>
#include <vector>

class QWebEngineLoadingInfo;
class QWebEngineView;

namespace pinmora {

/// The page of a map view in a web engine of its own: nothing of it outlives the program, links
/// open outside, and files dropped on it are the window's.
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

private:
    enum class State { Empty, Loading, Loaded };

    void obey(const MapView::Command &command);
    void load(const PageRequest &request);
    void run(const std::string &script);
    void loadingChanged(const QWebEngineLoadingInfo &info);
    void finish(bool ok);

    MapView &view_;
    QWebEngineView *browser_;
    QTimer timeout_;
    PageRequest request_;
    std::string publishedName_; ///< under which the page is to find the controller
    State state_ = State::Empty;
    std::vector<std::string> waiting_; ///< scripts that came while the page was being loaded
};

/// For MapPane.
MapPage *makeWebMapView(MapView &view, QWidget *parent);

} // namespace pinmora
