#pragma once

#include "outlets/signal.h"

#include <QHeaderView>

class QToolButton;

namespace pinmora {

class PhotoOrder;

/// The heading of the photo table, whose sections stand for several of the model's columns each. A
/// click sorts by a section's first key, or turns the order round; a menu offers all keys.
class PhotoHeader : public QHeaderView {
    Q_OBJECT

public:
    /// The order must outlive it. The menu stays the caller's.
    PhotoHeader(PhotoOrder &order, QMenu &menu, QWidget *parent = nullptr);

    QWidget *sortButton() const;

protected:
    void initStyleOptionForIndex(QStyleOptionHeader *option, int section) const override;
    void paintSection(QPainter *painter, const QRect &rect, int section) const override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void sortBySection(int logicalIndex);
    QString titleOf(int logicalIndex) const;

    PhotoOrder &order_;
    QToolButton *sort_;
    Connection ordered_;
};

} // namespace pinmora
