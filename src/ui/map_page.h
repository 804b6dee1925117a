#pragma once

#include <QWidget>

namespace pinmora {

/// What shows the page of a MapView.
class MapPage : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Attaches to the view: what has been asked of it until now is done.
    virtual void begin() = 0;
    /// Loads the page that was loaded last once more.
    virtual void loadAgain() = 0;

Q_SIGNALS:
    void loadStarted();
    void loadFinished(bool ok);
};

} // namespace pinmora
