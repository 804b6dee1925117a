#include "ui/web_profile.h"

#include <QDir>
#include <QStandardPaths>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

namespace pinmora {
namespace {

constexpr int largestCache = 80 * 1024 * 1024; // bytes

std::shared_ptr<QWebEngineProfile> makeProfile() {
    auto profile = std::make_shared<QWebEngineProfile>(QStringLiteral("map"));
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                           QStringLiteral("/Pinmora/map");
    profile->setCachePath(folder + QStringLiteral("/cache"));
    profile->setPersistentStoragePath(folder + QStringLiteral("/storage"));
    profile->setHttpCacheType(QWebEngineProfile::DiskHttpCache);
    profile->setHttpCacheMaximumSize(largestCache);
    profile->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    profile->setSpellCheckEnabled(false);
    // Whoever gives tiles wants to know who asks, and not for a browser.
    profile->setHttpUserAgent(
        QStringLiteral("Pinmora/" PINMORA_VERSION " (photo geotagging desktop application)"));
    QWebEngineSettings &settings = *profile->settings();
    for (const auto attribute :
         {QWebEngineSettings::PluginsEnabled, QWebEngineSettings::JavascriptCanOpenWindows,
          QWebEngineSettings::LocalStorageEnabled, QWebEngineSettings::DnsPrefetchEnabled,
          QWebEngineSettings::NavigateOnDropEnabled}) {
        settings.setAttribute(attribute, false);
    }
    QObject::connect(profile.get(), &QWebEngineProfile::downloadRequested, profile.get(),
                     [](QWebEngineDownloadRequest *download) { download->cancel(); });
    return profile;
}

} // namespace

std::shared_ptr<QWebEngineProfile> sharedWebProfile() {
    static std::weak_ptr<QWebEngineProfile> present;
    std::shared_ptr<QWebEngineProfile> profile = present.lock();
    if (!profile) {
        profile = makeProfile();
        present = profile;
    }
    return profile;
}

} // namespace pinmora
