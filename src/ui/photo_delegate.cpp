#include "ui/photo_delegate.h"

#include "shell/thumbnails.h"
#include "ui/icons.h"
#include "ui/photo_table_model.h"
#include "ui/theme.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>

#include <algorithm>

namespace pinmora {
namespace {

using Column = PhotoTableModel::Column;

constexpr QSize pictureSize(52, 36); // 3:2 and 4:3 both lose little in it
constexpr int pictureCorner = 3;
constexpr int linePadding = 6;

/// Pictures of usual proportions fill the frame, others stand in it whole.
QSizeF sizeInFrame(const QSize &picture, const QSizeF &frame) {
    const double widthByHeight = static_cast<double>(picture.width()) / picture.height();
    const bool fills = widthByHeight > 1.2 && widthByHeight < 1.8;
    return QSizeF(picture).scaled(frame,
                                  fills ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio);
}

/// The picture as it stands in a row, made once a resolution.
QPixmap framed(const QImage &picture, double pixelRatio) {
    const QString key = QStringLiteral("photo row %1 %2").arg(picture.cacheKey()).arg(pixelRatio);
    QPixmap frame;
    if (QPixmapCache::find(key, &frame)) {
        return frame;
    }
    const QSize pixels = pictureSize * pixelRatio;
    const QSize scaledSize = sizeInFrame(picture.size(), pixels).toSize();
    const QImage scaled =
        picture.scaled(scaledSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    frame = QPixmap(pixels);
    frame.fill(Qt::transparent);
    QPainter painter(&frame);
    painter.drawImage((pixels.width() - scaled.width()) / 2,
                      (pixels.height() - scaled.height()) / 2, scaled);
    painter.end();
    frame.setDevicePixelRatio(pixelRatio);
    QPixmapCache::insert(key, frame);
    return frame;
}

QString elided(const QPainter &painter, const QString &text, int width) {
    return painter.fontMetrics().elidedText(text, Qt::ElideRight, width);
}

/// Where the lower of two lines stands.
QRect lowerLine(const QPainter &painter, const QRect &area) {
    const int height = painter.fontMetrics().height();
    return {area.left(), area.center().y(), area.width(), height};
}

QRect upperLine(const QPainter &painter, const QRect &area) {
    const QRect lower = lowerLine(painter, area);
    return lower.translated(0, 1 - lower.height());
}

/// In quiet ink, as the lower line.
void paintSecond(QPainter *painter, const QRect &line, const QString &text) {
    painter->setPen(colours().quietText);
    painter->drawText(line, Qt::AlignVCenter | Qt::AlignLeft, elided(*painter, text, line.width()));
}

/// Two lines, or one in the middle of the row where the second is "".
void paintLines(QPainter *painter, const QRect &area, const QString &first, const QColor &firstInk,
                const QString &second) {
    painter->setPen(firstInk);
    painter->drawText(second.isEmpty() ? area : upperLine(*painter, area),
                      Qt::AlignVCenter | Qt::AlignLeft, elided(*painter, first, area.width()));
    if (!second.isEmpty()) {
        paintSecond(painter, lowerLine(*painter, area), second);
    }
}

void paintGround(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) {
    const QRect &cell = option.rect;
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    painter->fillRect(cell, isSelected ? colours().accentGround : colours().content);
    painter->fillRect(QRect(cell.left(), cell.bottom(), cell.width(), 1), colours().line);
    const auto *const view = qobject_cast<const QAbstractItemView *>(option.widget);
    if (index.column() == Column::Name && view && view->hasFocus() &&
        view->currentIndex().row() == index.row()) {
        painter->fillRect(QRect(cell.left(), cell.top(), 3, cell.height() - 1), colours().accent);
    }
}

/// In the corner of the picture, on a ground of its own: pictures have all colours.
void paintMark(QPainter *painter, const QRect &frame) {
    constexpr int side = 16;
    const QRect place(frame.right() - side + 5, frame.bottom() - side + 5, side, side);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colours().content);
    painter->drawEllipse(place.adjusted(-1, -1, 1, 1));
    icon("warning").paint(painter, place);
    painter->restore();
}

/// How the photo came by its position, at the head of the line; returns what is left of the line.
QRect paintOrigin(QPainter *painter, QRect line, const QModelIndex &index) {
    constexpr int side = 12;
    const std::string sign = index.data(PhotoTableModel::OriginSign).toString().toStdString();
    if (sign.empty()) {
        return line;
    }
    const QPixmap picture =
        quietIcon(sign).pixmap(QSize(side, side), painter->device()->devicePixelRatioF());
    painter->drawPixmap(line.left(), line.center().y() - side / 2 + 1, picture);
    line.setLeft(line.left() + side + smallGap);
    const QString gap = index.data(PhotoTableModel::OriginGap).toString();
    if (gap.isEmpty()) {
        return line;
    }
    painter->setPen(index.data(PhotoTableModel::OriginIsFar).toBool() ? colours().warning
                                                                      : colours().quietText);
    painter->drawText(line, Qt::AlignVCenter | Qt::AlignLeft, gap);
    line.setLeft(line.left() + painter->fontMetrics().horizontalAdvance(gap));
    return line;
}

void paintPosition(QPainter *painter, const QRect &area, const QModelIndex &index) {
    const QString position = index.data().toString();
    const QString second = index.data(PhotoTableModel::SecondLine).toString();
    const bool hasSign = !index.data(PhotoTableModel::OriginSign).toString().isEmpty();
    if (position.isEmpty()) {
        paintLines(painter, area, PhotoTableModel::tr("no position"), colours().quietText, {});
    } else if (!hasSign) {
        paintLines(painter, area, position, colours().text, second);
    } else {
        painter->setPen(colours().text);
        painter->drawText(upperLine(*painter, area), Qt::AlignVCenter | Qt::AlignLeft,
                          elided(*painter, position, area.width()));
        const bool hasGap = !index.data(PhotoTableModel::OriginGap).toString().isEmpty();
        const QRect rest = paintOrigin(painter, lowerLine(*painter, area), index);
        const QString dot = hasGap && !second.isEmpty() ? QStringLiteral(" · ") : QString();
        paintSecond(painter, rest, dot + second);
    }
}

void paintGap(QPainter *painter, const QRect &area, const QModelIndex &index) {
    const bool isFar = index.data(PhotoTableModel::IsFar).toBool();
    QFont font = painter->font();
    font.setBold(isFar);
    painter->setFont(font);
    painter->setPen(isFar ? colours().warning : colours().text);
    painter->drawText(area, Qt::AlignVCenter | Qt::AlignRight, index.data().toString());
}

} // namespace

PhotoDelegate::PhotoDelegate(Thumbnails &thumbnails, QObject *parent)
    : QStyledItemDelegate(parent), thumbnails_(thumbnails) {}

int PhotoDelegate::rowHeight(const QFontMetrics &metrics) {
    return std::max(pictureSize.height() + 10, 2 * metrics.height() + 2 * linePadding);
}

QSize PhotoDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const {
    return {0, rowHeight(option.fontMetrics)};
}

void PhotoDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const {
    painter->save();
    painter->setFont(option.font);
    paintGround(painter, option, index);
    const QRect area = option.rect.adjusted(spacing, 0, -spacing, -1);
    switch (index.column()) {
    case Column::Name: {
        paintPicture(painter, option.rect, index);
        const QString taken = index.data(PhotoTableModel::SecondLine).toString();
        paintLines(painter, option.rect.adjusted(textIndent, 0, -spacing / 2, -1),
                   index.data().toString(), colours().text,
                   taken.isEmpty() ? PhotoTableModel::tr("no capture time") : taken);
        break;
    }
    case Column::Position:
        paintPosition(painter, area, index);
        break;
    case Column::Gap:
        paintGap(painter, area, index);
        break;
    default:
        paintLines(painter, area, index.data().toString(), colours().text, {});
    }
    painter->restore();
}

void PhotoDelegate::paintPicture(QPainter *painter, const QRect &cell,
                                 const QModelIndex &index) const {
    QRect frame(QPoint(cell.left() + margin, 0), pictureSize);
    frame.moveTop(cell.top() + (cell.height() - 1 - frame.height()) / 2);
    const Picture picture =
        thumbnails_.thumbnail(index.data(PhotoTableModel::FilePath).toByteArray().toStdString());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    QPainterPath path;
    path.addRoundedRect(frame, pictureCorner, pictureCorner);
    painter->fillPath(path, colours().line);
    painter->setClipPath(path);
    if (picture && !picture->isNull()) {
        painter->drawPixmap(frame.topLeft(),
                            framed(*picture, painter->device()->devicePixelRatioF()));
    } else {
        painter->setOpacity(0.5);
        quietIcon("picture").paint(painter, frame.adjusted(16, 8, -16, -8));
    }
    painter->restore();
    if (!index.data(PhotoTableModel::NotSaved).toString().isEmpty()) {
        paintMark(painter, frame);
    }
}

} // namespace pinmora
