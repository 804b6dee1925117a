#include "ui/map_web_page.h"

#include "ui/theme.h"

#include <QDesktopServices>
#include <QUrl>
#include <QWebEngineNewWindowRequest>

namespace pinmora {
namespace {

void openOutside(const QUrl &address) {
    if (address.scheme() == QLatin1String("https") || address.scheme() == QLatin1String("http")) {
        QDesktopServices::openUrl(address);
    }
}

} // namespace

MapWebPage::MapWebPage(QWebEngineProfile *profile, QObject *parent)
    : QWebEnginePage(profile, parent) {
    setBackgroundColor(colours().window);
    connect(this, &QWebEnginePage::newWindowRequested, this,
            [](const QWebEngineNewWindowRequest &request) { openOutside(request.requestedUrl()); });
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl &origin, Feature feature) {
                setFeaturePermission(origin, feature, PermissionDeniedByUser);
            });
}

bool MapWebPage::acceptNavigationRequest(const QUrl &address, NavigationType type,
                                         bool isMainFrame) {
    if (isMainFrame && (type == NavigationTypeLinkClicked || type == NavigationTypeFormSubmitted)) {
        openOutside(address);
        return false;
    }
    return true;
}

} // namespace pinmora
