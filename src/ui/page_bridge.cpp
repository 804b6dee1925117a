#include "ui/page_bridge.h"

#include "ui/page_scripts.h"
#include "ui/sheet_redraw.h"

#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>

#include <chrono>
#include <cmath>
#include <utility>

namespace pinmora {
namespace {

constexpr std::chrono::milliseconds pauseForWork{50};

} // namespace

PageBridge::PageBridge(QWebEnginePage &page) : page_(page) {
    channel_.registerObject(QStringLiteral("calls"), &calls_);
    channel_.registerObject(QStringLiteral("drawing"), &drawing_);
    page_.setWebChannel(&channel_, QWebEngineScript::ApplicationWorld);
    connect(&calls_, &PageCalls::begun, this, [this] {
        if (isAtHome()) {
            Q_EMIT begun();
        }
    });
    connect(&calls_, &PageCalls::taken, this, &PageBridge::take);
    lookAgain_.setSingleShot(true);
    connect(&lookAgain_, &QTimer::timeout, this, &PageBridge::release);
}

PageBridge::~PageBridge() {
    page_.setWebChannel(nullptr);
}

/// The scripts are the profile's, whose processes have them before any document: those of a page
/// may come too late where a document is given to a process that runs already.
void PageBridge::serve(const QUrl &address, const std::string &publishedName) {
    origin_ = originOf(address);
    if (origin_.isEmpty() || publishedName.empty()) {
        return;
    }
    QWebEngineScriptCollection &scripts = *page_.profile()->scripts();
    for (const QWebEngineScript &script :
         pageScripts(origin_, QString::fromStdString(publishedName))) {
        if (scripts.find(script.name()).isEmpty()) {
            scripts.insert(script);
        }
    }
}

bool PageBridge::isAtHome() const {
    return !origin_.isEmpty() && originOf(page_.url()) == origin_;
}

void PageBridge::feed(const std::string &json) {
    if (isAtHome()) {
        Q_EMIT drawing_.fed(QString::fromStdString(json));
    }
}

void PageBridge::take(const QJsonArray &messages) {
    if (!isAtHome()) {
        return;
    }
    for (const auto &message : messages) {
        if (std::optional<PageCall> call = pageCallFrom(message.toString())) {
            held_.push_back(*std::move(call));
        }
    }
    release();
}

/// Long work draws itself in between: what a page said meanwhile must not become a part of it.
void PageBridge::release() {
    while (!held_.empty() && !isRedrawingDuringWork()) {
        const PageCall call = std::move(held_.front());
        held_.pop_front();
        Q_EMIT called(call);
    }
    if (!held_.empty()) {
        lookAgain_.start(pauseForWork);
    }
}

QString originOf(const QUrl &address) {
    const QString scheme = address.scheme();
    if (!address.isValid() || address.host().isEmpty() ||
        (scheme != QLatin1String("http") && scheme != QLatin1String("https"))) {
        return {};
    }
    QUrl origin;
    origin.setScheme(scheme);
    origin.setHost(address.host());
    if (address.port() != (scheme == QLatin1String("http") ? 80 : 443)) {
        origin.setPort(address.port());
    }
    return origin.toString(QUrl::FullyEncoded);
}

std::optional<PageCall> pageCallFrom(const QString &message) {
    const qsizetype typeEnd = message.indexOf(u' ');
    const qsizetype nameEnd = typeEnd < 0 ? -1 : message.indexOf(u' ', typeEnd + 1);
    if (nameEnd < 0 || message.size() - nameEnd - 1 > longestArgument ||
        nameEnd - typeEnd - 1 > longestName) {
        return std::nullopt;
    }
    const QString type = message.first(typeEnd);
    const QString argument = message.sliced(nameEnd + 1);
    PageCall call{message.sliced(typeEnd + 1, nameEnd - typeEnd - 1).toStdString(), {}};
    if (type == QLatin1String("string")) {
        call.argument = argument.toStdString();
        return call;
    }
    bool isNumber = false;
    const double number = argument.toDouble(&isNumber);
    if (type == QLatin1String("number") && isNumber && std::isfinite(number)) {
        call.argument = number;
        return call;
    }
    return std::nullopt;
}

} // namespace pinmora
