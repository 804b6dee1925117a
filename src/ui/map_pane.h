#pragma once

#include "ui/map_page.h"

#include <functional>

class QLabel;
class QPushButton;
class QStackedLayout;

namespace pinmora {

class MapView;

/// The place of a map. The page that shows it is made after the first paint, so that the window
/// does not wait for it; until a page has been loaded the pane says how things stand.
class MapPane : public QWidget {
    Q_OBJECT

public:
    using MakePage = std::function<MapPage *(MapView &view, QWidget *parent)>;

    /// The view must outlive the pane. Without `makePage` there is never a page.
    MapPane(MapView &view, MakePage makePage, QWidget *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addPage();
    void takeItsTurn();
    void say(const QString &text, bool offersAgain = false);

    MapView &view_;
    MakePage makePage_;
    QStackedLayout *stack_;
    QWidget *ground_;
    QLabel *words_;
    QPushButton *again_;
    MapPage *page_ = nullptr;
};

} // namespace pinmora
