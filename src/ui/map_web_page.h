#pragma once

#include <QWebEnginePage>

namespace pinmora {

/// A page that stays what it is: links and forms open outside, it gets no permissions, and its
/// scripts put up no dialogs.
class MapWebPage : public QWebEnginePage {
    Q_OBJECT

public:
    MapWebPage(QWebEngineProfile *profile, QObject *parent);

protected:
    bool acceptNavigationRequest(const QUrl &address, NavigationType type,
                                 bool isMainFrame) override;
    void javaScriptAlert(const QUrl &, const QString &) override {}
    bool javaScriptConfirm(const QUrl &, const QString &) override { return false; }
    bool javaScriptPrompt(const QUrl &, const QString &, const QString &, QString *) override {
        return false;
    }
};

} // namespace pinmora
