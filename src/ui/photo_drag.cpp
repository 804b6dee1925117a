#include "ui/photo_drag.h"

#include "ui/icons.h"
#include "ui/theme.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QWidget>

namespace pinmora {
namespace {

constexpr int pinSize = 28; // device-independent pixels

QString mimeType() {
    return QStringLiteral("application/x-pinmora-photos");
}

/// The pin that the photos will have, and of several, how many they are.
QPixmap lookOf(qsizetype count, const QWidget &source) {
    const QString number = count > 1 ? QString::number(count) : QString();
    const int width = source.fontMetrics().horizontalAdvance(number);
    const QSize size(pinSize + (count > 1 ? width + 2 * spacing : 0), pinSize);
    QPixmap pixmap(size * source.devicePixelRatio());
    pixmap.setDevicePixelRatio(source.devicePixelRatio());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    icon("marker").paint(&painter, QRect(0, 0, pinSize, pinSize));
    if (count > 1) {
        const QRect label(pinSize, 2, width + 2 * spacing, pinSize - 8);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colours().accent);
        painter.drawRoundedRect(label, label.height() / 2.0, label.height() / 2.0);
        painter.setPen(colours().onAccent());
        painter.setFont(source.font());
        painter.drawText(label, Qt::AlignCenter, number);
    }
    return pixmap;
}

} // namespace

void dragPhotos(QWidget *source, qsizetype count) {
    auto *const data = new QMimeData;
    data->setData(mimeType(), QByteArray::number(count));
    auto *const drag = new QDrag(source); // goes by itself when the drag is over
    drag->setMimeData(data);
    drag->setPixmap(lookOf(count, *source));
    drag->setHotSpot(QPoint(pinSize / 2, pinSize - 2)); // the pin's point
    drag->exec(Qt::CopyAction);
}

bool carriesPhotos(const QDropEvent &event) {
    return event.source() && event.mimeData()->hasFormat(mimeType());
}

} // namespace pinmora
