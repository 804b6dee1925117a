#include "ui/time_strip_widget.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>

#include <algorithm>
#include <cmath>
#include <utility>

/// What a hand at the time strip does: with the mouse, the wheel and the keys.
namespace pinmora {

void TimeStripWidget::focusOutEvent(QFocusEvent *event) {
    if (event->reason() != Qt::PopupFocusReason) {
        cancelDrag();
    }
    QWidget::focusOutEvent(event);
}

QRectF TimeStripWidget::bandRect() const {
    return QRectF(pressed_, pointer_).normalized() & QRectF(rect());
}

void TimeStripWidget::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton || hand_ != Hand::Idle) {
        return;
    }
    pressed_ = pointer_ = event->position();
    keys_ = event->modifiers();
    if (edgeRect(false).contains(pressed_) || edgeRect(true).contains(pressed_)) {
        showAll();
        return;
    }
    grasped_ = photoAt(pressed_);
    hand_ = grasped_ ? Hand::OnTick : Hand::OnGround;
    showCursor(pressed_);
}

void TimeStripWidget::mouseMoveEvent(QMouseEvent *event) {
    pointer_ = event->position();
    const bool isFar =
        std::abs(pointer_.x() - pressed_.x()) >= QApplication::startDragDistance() / 2.0;
    if (hand_ == Hand::OnTick && isFar) {
        const auto &ticks = strip_.ticks();
        const bool isThere = std::any_of(ticks.begin(), ticks.end(), [this](const auto &tick) {
            return tick.photo == grasped_;
        });
        hand_ = isThere ? Hand::Turning : Hand::Idle;
        if (isThere) {
            strip_.grasp(*grasped_);
        }
    } else if (hand_ == Hand::OnGround && isFar) {
        hand_ = Hand::Banding;
    }
    if (hand_ == Hand::Turning) {
        strip_.turnTo(axis_.spanOf(pointer_.x() - pressed_.x()));
    }
    if (hand_ != Hand::Idle) {
        update();
    }
    showCursor(pointer_);
}

void TimeStripWidget::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const Hand was = std::exchange(hand_, Hand::Idle);
    if (was == Hand::Turning) {
        strip_.letGo();
    } else if (was == Hand::Banding) {
        endBand();
    } else if (was == Hand::OnTick) {
        if (image *const photo = photoAt(pressed_)) {
            using enum TimeStrip::Choice;
            strip_.choose({photo}, keys_.testFlag(Qt::ControlModifier) ? Toggled
                                   : keys_.testFlag(Qt::ShiftModifier) ? Also
                                                                       : Only);
        }
    }
    showCursor(event->position());
    update();
}

void TimeStripWidget::endBand() {
    const double left = std::min(pressed_.x(), pointer_.x());
    const double right = std::max(pressed_.x(), pointer_.x());
    std::vector<image *> photos;
    for (const TimeStrip::Tick &tick : strip_.ticks()) {
        const double x = axis_.xOf(tick.at);
        if (x >= left && x <= right) {
            photos.push_back(tick.photo);
        }
    }
    const bool adds = keys_ & (Qt::ControlModifier | Qt::ShiftModifier);
    strip_.choose(photos, adds ? TimeStrip::Choice::Also : TimeStrip::Choice::Only);
}

void TimeStripWidget::cancelDrag() {
    if (std::exchange(hand_, Hand::Idle) == Hand::Turning) {
        strip_.cancel();
    }
    update();
}

void TimeStripWidget::mouseDoubleClickEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton || photoAt(event->position())) {
        return;
    }
    if (isOnBar(event->position()) && strip_.canSetFromMoment()) {
        strip_.setFromMoment(axis_.at(event->position().x()));
    } else {
        showAll();
    }
}

void TimeStripWidget::showCursor(QPointF at) {
    if (hand_ == Hand::Turning) {
        setCursor(Qt::ClosedHandCursor);
    } else if (edgeRect(false).contains(at) || edgeRect(true).contains(at)) {
        setCursor(Qt::PointingHandCursor);
    } else if (hand_ != Hand::Banding && photoAt(at)) {
        setCursor(Qt::OpenHandCursor);
    } else {
        unsetCursor();
    }
}

void TimeStripWidget::wheelEvent(QWheelEvent *event) {
    const QPoint turned = event->angleDelta();
    const bool pans = event->modifiers().testFlag(Qt::ShiftModifier);
    if (hand_ != Hand::Idle) {
        event->accept();
        return;
    }
    if (pans || std::abs(turned.x()) > std::abs(turned.y())) {
        setAxis(axis_.panned(-(turned.x() != 0 ? turned.x() : turned.y()) / 2.0));
    } else if (turned.y() != 0) {
        setAxis(axis_.zoomed(event->position().x(), std::exp2(-turned.y() / 240.0)));
    }
    event->accept();
}

bool TimeStripWidget::pressKey(const QKeyEvent &event) {
    const double middle = width() / 2.0;
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const std::chrono::seconds size =
            event.modifiers().testFlag(Qt::ControlModifier) ? std::chrono::hours(1)
            : event.modifiers().testFlag(Qt::ShiftModifier) ? std::chrono::minutes(1)
                                                            : std::chrono::seconds(1);
        strip_.step(event.key() == Qt::Key_Left ? -size : size);
        return true;
    }
    case Qt::Key_Home:
        showAll();
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        setAxis(axis_.panned(event.key() == Qt::Key_PageUp ? -middle : middle));
        return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        setAxis(axis_.zoomed(middle, 0.5));
        return true;
    case Qt::Key_Minus:
        setAxis(axis_.zoomed(middle, 2));
        return true;
    default:
        return false;
    }
}

void TimeStripWidget::keyPressEvent(QKeyEvent *event) {
    if (hand_ != Hand::Idle) {
        if (event->key() == Qt::Key_Escape) {
            cancelDrag();
        }
    } else if (!pressKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

void TimeStripWidget::contextMenuEvent(QContextMenuEvent *event) {
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const Date moment = axis_.at(event->pos().x());
    QMenu menu(this);
    QAction *const taken = menu.addAction(tr("This Is When the Photo Was Taken"));
    taken->setEnabled(byMouse && isOnBar(event->pos()) && strip_.canSetFromMoment());
    menu.addSeparator();
    const QAction *const all = menu.addAction(tr("Show All"));
    const QAction *const tracks = menu.addAction(tr("Show Tracks"));
    const QAction *const chosen = menu.exec(event->globalPos());
    if (chosen == taken) {
        strip_.setFromMoment(moment);
    } else if (chosen == all) {
        showAll();
    } else if (chosen && chosen == tracks) {
        showTracks();
    }
}

} // namespace pinmora
