#include "ui/theme.h"
#include "ui/time_strip_widget.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace pinmora {
namespace {

constexpr double tickBreadth = 3;
constexpr double selectedBreadth = 5;

/// What ticks a column of pixels has; later ones are painted over earlier ones.
enum Kind : std::uint8_t { Near = 1, Far = 2, Selected = 4, SelectedFar = 8 };

} // namespace

QRectF TimeStripWidget::barRect(Date from, Date to) const {
    const double top = marksHeight();
    const double room = height() - top;
    const double high = std::min<double>(fontMetrics().height() + 3, room - smallGap);
    const double left = std::max(axis_.xOf(from), -10.0);
    const double right = std::min(axis_.xOf(to), width() + 10.0);
    const double above = marksHeight() > 0 ? height() - high - 5 : top + (room - high) / 2;
    return {left, above, std::max(right - left, 3.0), high};
}

void TimeStripWidget::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), colours().content);
    paintMarks(painter);
    paintBars(painter);
    paintTicks(painter);
    paintEdges(painter);
    paintHand(painter);
    if (hasFocus()) {
        painter.setPen(QPen(colours().accent, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    }
}

void TimeStripWidget::paintMarks(QPainter &painter) const {
    const int room = std::max(fontMetrics().horizontalAdvance(QStringLiteral("00 Mmm 0000")), 80);
    for (const TimeAxis::Mark &mark : axis_.marks(room + spacing)) {
        painter.fillRect(QRectF(std::round(mark.x), 0, 1, height()), colours().line);
        if (marksHeight() > 0) {
            painter.setPen(colours().quietText);
            painter.drawText(QRectF(mark.x + smallGap, 1, room, marksHeight()),
                             Qt::AlignLeft | Qt::AlignVCenter, mark.label);
        }
    }
    painter.fillRect(QRectF(0, 0, width(), 1), colours().line);
}

void TimeStripWidget::paintBars(QPainter &painter) {
    const QColor ground = mixed(colours().accentGround, colours().accent, 0.18F);
    double labelled = -1;
    for (const TimeStrip::Bar &bar : strip_.bars()) {
        const QRectF area = barRect(bar.from, bar.to);
        if (area.right() < 0 || area.left() > width()) {
            continue;
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawRoundedRect(area, 3, 3);
        const QString label = tr("Track %1").arg(QString::fromStdString(bar.number));
        const QRectF seen = area & QRectF(rect());
        const double needed = fontMetrics().horizontalAdvance(label) + 1.5 * spacing;
        if (marksHeight() > 0 && seen.width() >= needed && seen.left() >= labelled) {
            painter.setPen(colours().text);
            painter.drawText(seen.adjusted(6, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, label);
            labelled = seen.left() + needed;
        }
    }
}

/// Ticks that fall on one column are one: ten thousand cost no more than the strip is wide.
void TimeStripWidget::paintTicks(QPainter &painter) {
    const double scale = devicePixelRatioF();
    std::vector<std::uint8_t> columns(static_cast<std::size_t>(std::ceil(width() * scale)) + 1, 0);
    for (const TimeStrip::Tick &tick : strip_.ticks()) {
        const double column = std::floor(axis_.xOf(tick.at) * scale);
        if (column >= 0 && column < static_cast<double>(columns.size())) {
            columns[static_cast<std::size_t>(column)] |=
                tick.selected ? (tick.far ? SelectedFar : Selected) : (tick.far ? Far : Near);
        }
    }
    const double top = marksHeight() > 0 ? marksHeight() : 3;
    const double bottom = height() - (marksHeight() > 0 ? 6 : 3);
    painter.setPen(Qt::NoPen);
    const auto paint = [&](Kind kind, const QColor &colour, double breadth, double beyond) {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (columns[i] & kind) {
                const double x = (static_cast<double>(i) + 0.5) / scale - breadth / 2;
                painter.fillRect(QRectF(x, top - beyond, breadth, bottom - top + 2 * beyond),
                                 colour);
            }
        }
    };
    const Colours &now = colours();
    paint(Near, mixed(now.accent, now.content, 0.2F), tickBreadth, 0);
    paint(Far, mixed(now.warning, now.content, 0.15F), tickBreadth, 0);
    paint(SelectedFar, now.warning, selectedBreadth, 2);
    paint(Selected, now.accent, selectedBreadth, 2);
}

void TimeStripWidget::paintEdges(QPainter &painter) {
    for (const bool later : {false, true}) {
        const QString text = edgeText(later);
        if (!text.isEmpty()) {
            const QRectF area = edgeRect(later);
            painter.setPen(QPen(colours().line, 1));
            painter.setBrush(colours().window);
            painter.drawRoundedRect(area, 4, 4);
            painter.setPen(colours().warning);
            painter.drawText(area, Qt::AlignCenter, text);
        }
    }
}

void TimeStripWidget::paintHand(QPainter &painter) {
    if (hand_ == Hand::Banding) {
        QColor ground = colours().accent;
        ground.setAlphaF(0.15F);
        const QRectF band = bandRect();
        painter.setPen(QPen(colours().accent, 1));
        painter.setBrush(ground);
        painter.drawRect(QRectF(band.left(), 1, band.width(), height() - 2));
    }
    if (hand_ != Hand::Turning) {
        return;
    }
    const QString words = QString::fromStdString(strip_.turnWords());
    const double breadth = fontMetrics().horizontalAdvance(words) + 2.0 * spacing;
    const double high = fontMetrics().height() + smallGap;
    double left = pointer_.x() + 2 * spacing;
    if (left + breadth > width()) {
        left = std::max(pointer_.x() - breadth - 2 * spacing, 0.0);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours().text);
    const QRectF area(left, marksHeight() > 0 ? 2 : (height() - high) / 2, breadth, high);
    painter.drawRoundedRect(area, 4, 4);
    painter.setPen(colours().content);
    painter.drawText(area, Qt::AlignCenter, words);
}

} // namespace pinmora
