#include "ui/time_strip_widget.h"

#include "platform/translation.h"
#include "store/image.h"
#include "ui/photo_texts.h"
#include "ui/theme.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLocale>
#include <QMenu>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace pinmora {
namespace {

constexpr double reach = 4; ///< of a tick, to either side
constexpr int lowWindow = 620;

} // namespace

TimeStripWidget::TimeStripWidget(TimeStrip &strip, QWidget *parent)
    : QWidget(parent), strip_(strip) {
    setObjectName(QStringLiteral("timeStrip"));
    setAccessibleName(tr("Time strip"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    hide();
    following_ = strip.changed.connect([this] { follow(); });
    follow();
}

void TimeStripWidget::setOffered(bool offered) {
    offered_ = offered;
    follow();
}

void TimeStripWidget::follow() {
    const std::size_t photos = strip_.ticks().size();
    const std::size_t bars = strip_.bars().size();
    setVisible(offered_ && photos + bars > 0);
    if (hand_ == Hand::Turning && !strip_.isTurning()) {
        hand_ = Hand::Idle; // somebody else has ended it
    }
    if (isFitted_ && hand_ == Hand::Idle && (photos != photosFitted_ || bars != barsFitted_)) {
        showTracks();
    }
    if (hand_ == Hand::Idle) {
        describe();
    }
    update();
}

void TimeStripWidget::showTracks() {
    fit(false);
}

void TimeStripWidget::showAll() {
    fit(true);
}

void TimeStripWidget::fit(bool all) {
    photosFitted_ = strip_.ticks().size();
    barsFitted_ = strip_.bars().size();
    isFitted_ = true;
    const std::optional<TimeStrip::Extent> tracks = strip_.tracksExtent();
    std::optional<TimeStrip::Extent> seen = strip_.photosExtent();
    if (!seen) {
        seen = tracks;
    } else if (tracks) {
        seen = {std::min(seen->from, tracks->from), std::max(seen->to, tracks->to)};
        if (!all && (seen->to - seen->from) / 20 > tracks->to - tracks->from) {
            seen = tracks;
        }
    }
    if (seen) {
        const auto margin = std::max<std::chrono::microseconds>((seen->to - seen->from) / 25,
                                                                std::chrono::minutes(1));
        axis_ = {seen->from - margin, seen->to + margin, double(width())};
    }
    update();
}

void TimeStripWidget::setAxis(const TimeAxis &axis) {
    axis_ = axis;
    isFitted_ = false;
    update();
}

void TimeStripWidget::describe() {
    const auto far = std::count_if(strip_.ticks().begin(), strip_.ticks().end(),
                                   [](const auto &tick) { return tick.far; });
    const std::string tracks = translated("ui", "%Ln tracks", "%Ln track", strip_.bars().size());
    const std::string photos = translated("ui", "%Ln photos", "%Ln photo", strip_.ticks().size());
    //: %1: how many tracks, %2: how many photos, in words; %3: how many of the photos
    const QString text = tr("%1, %2, %3 of them far from any log. The arrow keys turn the camera’s "
                            "clock by a second, with Shift by a minute, with Ctrl by an hour.")
                             .arg(QString::fromStdString(tracks), QString::fromStdString(photos),
                                  QLocale().toString(static_cast<qlonglong>(far)));
    if (text != accessibleDescription()) {
        setAccessibleDescription(text);
    }
}

int TimeStripWidget::marksHeight() const {
    const int line = fontMetrics().height() + smallGap;
    return height() > 2 * line ? line : 0;
}

/// Low windows need their height for other things.
void TimeStripWidget::settleHeight() {
    const int line = fontMetrics().height();
    const bool isLow = window()->height() < lowWindow;
    setFixedHeight(isLow ? std::max(3 * spacing + smallGap, line + spacing) : line + 6 * spacing);
}

void TimeStripWidget::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    window()->installEventFilter(this);
    settleHeight();
}

void TimeStripWidget::hideEvent(QHideEvent *event) {
    cancelDrag();
    QWidget::hideEvent(event);
}

bool TimeStripWidget::eventFilter(QObject *object, QEvent *event) {
    if (event->type() == QEvent::Resize && object == window()) {
        settleHeight();
    }
    return QWidget::eventFilter(object, event);
}

void TimeStripWidget::resizeEvent(QResizeEvent *event) {
    axis_ = axis_.resized(width());
    QWidget::resizeEvent(event);
}

void TimeStripWidget::focusOutEvent(QFocusEvent *event) {
    if (event->reason() != Qt::PopupFocusReason) {
        cancelDrag();
    }
    QWidget::focusOutEvent(event);
}

image *TimeStripWidget::photoAt(QPointF at) {
    if (at.y() < marksHeight()) {
        return nullptr;
    }
    image *nearest = nullptr;
    double least = reach;
    for (const TimeStrip::Tick &tick : strip_.ticks()) {
        const double apart = std::abs(axis_.xOf(tick.at) - at.x());
        if (apart < least || (apart == least && tick.selected)) {
            least = apart;
            nearest = tick.photo;
        }
    }
    return nearest;
}

bool TimeStripWidget::isOnBar(QPointF at) {
    return std::any_of(strip_.bars().begin(), strip_.bars().end(), [this, at](const auto &bar) {
        return barRect(bar.from, bar.to).contains(at);
    });
}

TimeStripWidget::Outside TimeStripWidget::outside() {
    Outside count;
    for (const TimeStrip::Tick &tick : strip_.ticks()) {
        count.earlier += tick.at < axis_.from() ? 1 : 0;
        count.later += tick.at > axis_.to() ? 1 : 0;
    }
    return count;
}

QString TimeStripWidget::edgeText(bool later) {
    const Outside count = outside();
    const auto photos = static_cast<std::size_t>(later ? count.later : count.earlier);
    if (photos == 0) {
        return {};
    }
    return QString::fromStdString(
        later ? translated("ui", "%Ln photos later ›", "%Ln photo later ›", photos)
              : translated("ui", "‹ %Ln photos earlier", "‹ %Ln photo earlier", photos));
}

QRectF TimeStripWidget::edgeRect(bool later) {
    const QString text = edgeText(later);
    if (text.isEmpty()) {
        return {};
    }
    const double breadth = fontMetrics().horizontalAdvance(text) + 2.0 * spacing;
    const double high = fontMetrics().height() + smallGap;
    const double middle = (marksHeight() + height()) / 2.0;
    return {later ? width() - breadth - smallGap : smallGap, middle - high / 2, breadth, high};
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

QString TimeStripWidget::tipFor(const image &photo, Date at) {
    const QString gap = photo_texts::gap(strip_.gapOf(photo));
    const QString text = photo_texts::name(photo) + QLatin1Char('\n') + shortTime(at);
    return gap.isEmpty() ? text : text + QLatin1Char('\n') + tr("%1 from the log").arg(gap);
}

bool TimeStripWidget::event(QEvent *event) {
    if (event->type() == QEvent::ShortcutOverride && hand_ != Hand::Idle) {
        event->accept(); // Escape is for the drag
        return true;
    }
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto *const help = static_cast<QHelpEvent *>(event);
    const image *const photo = hand_ == Hand::Idle ? photoAt(help->pos()) : nullptr;
    QString text;
    for (const TimeStrip::Tick &tick : strip_.ticks()) {
        if (photo && tick.photo == photo) {
            text = tipFor(*photo, tick.at);
        }
    }
    QToolTip::showText(help->globalPos(), text, this);
    return true;
}

} // namespace pinmora
