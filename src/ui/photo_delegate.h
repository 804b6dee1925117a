#pragma once

#include <QStyledItemDelegate>

namespace pinmora {

class Thumbnails;

/// The two-line look of photos: the picture, name and time; position, and
/// how the photo came by it, height and place; the gap.
class PhotoDelegate : public QStyledItemDelegate {
public:
    /// Device-independent pixels: from the left edge to the picture and to the name.
    static constexpr int margin = 12;
    static constexpr int textIndent = 76;

    /// Must outlive it.
    explicit PhotoDelegate(Thumbnails &thumbnails, QObject *parent = nullptr);

    /// Of rows in this font.
    static int rowHeight(const QFontMetrics &metrics);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintPicture(QPainter *painter, const QRect &cell, const QModelIndex &index) const;

    Thumbnails &thumbnails_;
};

} // namespace pinmora
