#pragma once

#include "outlets/map_view.h"

#include <QJsonArray>
#include <QObject>
#include <QTimer>
#include <QWebChannel>

#include <deque>
#include <optional>
#include <string>

class QUrl;
class QWebEnginePage;

namespace pinmora {

/// What reaches the program from the page's side of the channel.
class PageCalls : public QObject {
    Q_OBJECT

public Q_SLOTS:
    /// The channel of a new document is up.
    void begin() { Q_EMIT begun(); }
    void take(const QJsonArray &messages) { Q_EMIT taken(messages); }

Q_SIGNALS:
    void begun();
    void taken(const QJsonArray &messages);
};

/// What goes to the page; it only sends.
class PageDrawing : public QObject {
    Q_OBJECT

Q_SIGNALS:
    void fed(const QString &json);
};

/// The two-way connection with the scripts of one page, for documents of one origin only: others
/// find nothing there, and what they might say is not heard.
class PageBridge : public QObject {
    Q_OBJECT

public:
    /// The page must outlive it.
    explicit PageBridge(QWebEnginePage &page);
    ~PageBridge() override;
    PageBridge(const PageBridge &) = delete;
    PageBridge &operator=(const PageBridge &) = delete;

    /// Documents whose load begins from now on find the object of the program under this name if
    /// they are of the address's origin.
    void serve(const QUrl &address, const std::string &publishedName);
    /// Whether the page is of that origin now.
    bool isAtHome() const;
    /// Sends the page what it is to draw, if it is there.
    void feed(const std::string &json);

Q_SIGNALS:
    /// A document of the right origin is ready to be fed.
    void begun();
    /// The page has called; never in the middle of long work.
    void called(const pinmora::PageCall &call);

private:
    void take(const QJsonArray &messages);
    void release();

    QWebEnginePage &page_;
    QString origin_;
    PageCalls calls_;
    PageDrawing drawing_;
    QWebChannel channel_;
    std::deque<PageCall> held_; ///< calls that came while long work was drawing itself
    QTimer lookAgain_;
};

/// "https://example.org:8080", as scripts see it; "" for an address that has none.
QString originOf(const QUrl &address);

/// "TYPE FUNCTION ARGUMENT", as scripts send it. Nothing when it is anything else, or too long.
std::optional<PageCall> pageCallFrom(const QString &message);

} // namespace pinmora
