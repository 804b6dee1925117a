#include "ui/time_strip_widget.h"

#include "platform/translation.h"
#include "store/image.h"
#include "ui/photo_texts.h"
#include "ui/theme.h"
#include "ui/time_strip_accessible.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QLocale>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace pinmora {
namespace {

constexpr double reach = 4; ///< of a tick, to either side
constexpr int lowWindow = 620;

} // namespace

TimeStripWidget::TimeStripWidget(TimeStrip &strip, QWidget *parent)
    : QWidget(parent), strip_(strip) {
    makeTimeStripsAccessible();
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
    fitsAll_ = all;
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
        makeRoomForEdges(axis_.xOf(seen->from));
    }
    update();
}

/// What tells of photos out of sight is not to stand on those that are seen, `margin` pixels from
/// the ends.
void TimeStripWidget::makeRoomForEdges(double margin) {
    const double edge = std::max(edgeRect(false).width(), edgeRect(true).width()) + spacing;
    if (edge > spacing && edge > margin && width() > 4 * edge) {
        axis_ = axis_.zoomed(width() / 2.0, (width() - 2 * margin) / (width() - 2 * edge));
    }
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
    const std::chrono::seconds clock = strip_.clock();
    if (std::exchange(clockTold_, clock) != clock) {
        QAccessibleValueChangeEvent changed(this, static_cast<qlonglong>(clock.count()));
        QAccessible::updateAccessibility(&changed);
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
    if (isFitted_ && hand_ == Hand::Idle) {
        fit(fitsAll_);
    }
    QWidget::resizeEvent(event);
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
