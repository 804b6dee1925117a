#pragma once

#include "shell/time_strip.h"
#include "ui/time_axis.h"

#include <QWidget>

#include <chrono>
#include <cstddef>
#include <optional>
#include <vector>

namespace pinmora {

/// The time strip: tracks as bars, photos as ticks. A click on a tick selects its photo, dragging
/// it turns the camera's clock, and a rubber band selects many. It is not seen while there is
/// nothing on it, and low where the window is.
class TimeStripWidget : public QWidget {
    Q_OBJECT

public:
    /// The strip must outlive it.
    explicit TimeStripWidget(TimeStrip &strip, QWidget *parent = nullptr);

    /// Whether it is to be seen once there is something on it.
    void setOffered(bool offered);
    const TimeAxis &axis() const { return axis_; }
    TimeStrip &strip() const { return strip_; }
    /// All of it, or, with photos far away from the tracks, the tracks.
    void showTracks();
    void showAll();

    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    enum class Hand { Idle, OnTick, Turning, OnGround, Banding };
    /// Photos that are out of sight.
    struct Outside {
        int earlier = 0;
        int later = 0;
    };

    void follow();
    void fit(bool all);
    void makeRoomForEdges(double margin);
    void setAxis(const TimeAxis &axis);
    void settleHeight();
    void describe();
    void showCursor(QPointF at);
    void cancelDrag();
    void endBand();

    image *photoAt(QPointF at);
    bool isOnBar(QPointF at);
    QRectF bandRect() const;
    Outside outside();
    QRectF edgeRect(bool later);
    QString edgeText(bool later);
    int marksHeight() const;
    QRectF barRect(Date from, Date to) const;
    QString tipFor(const image &photo, Date at);
    bool pressKey(const QKeyEvent &event);

    void paintMarks(QPainter &painter) const;
    void paintBars(QPainter &painter);
    void paintTicks(QPainter &painter);
    void paintEdges(QPainter &painter);
    void paintHand(QPainter &painter);

    TimeStrip &strip_;
    TimeAxis axis_;
    bool offered_ = true;
    bool isFitted_ = true; ///< what is seen follows what is there
    bool fitsAll_ = false; ///< and is all of it
    std::size_t photosFitted_ = 0;
    std::size_t barsFitted_ = 0;
    std::chrono::seconds clockTold_{0}; ///< to assistive technology
    Hand hand_ = Hand::Idle;
    QPointF pressed_;
    QPointF pointer_;
    Qt::KeyboardModifiers keys_;
    image *grasped_ = nullptr; ///< touched only as long as a tick has it
    Connection following_;
};

} // namespace pinmora
