#pragma once

#include "outlets/signal.h"

#include <QTableView>

#include <functional>
#include <optional>

namespace pinmora {

class PhotoFilter;
class PhotoOrder;
class Thumbnails;

/// The table in which photos are seen and chosen, and from which the selected ones are dragged: the
/// mouse drags them when it goes aside first, and selects rows when it goes up or down.
class PhotoTable : public QTableView {
    Q_OBJECT

public:
    /// All but the parent must outlive it. `open` is called for a double click and for Return.
    PhotoTable(PhotoFilter &filter, PhotoOrder &order, Thumbnails &thumbnails, QMenu &sortMenu,
               std::function<void()> open, QWidget *parent = nullptr);

    /// Whether it may be too narrow for positions and gaps, which are then left out.
    void setMayBeNarrow(bool yes);
    /// Stands in the heading.
    QWidget *sortButton() const { return sort_; }

protected:
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitToFont();
    void fitColumns();

    std::function<void()> open_;
    QWidget *sort_ = nullptr;
    bool mayBeNarrow_ = false;
    std::optional<QPoint> pressed_; ///< on a row, and what that becomes is open
    Connection thumbnailReady_;
};

} // namespace pinmora
