#include "ui/icon_label.h"

#include <QPainter>

namespace pinmora {

IconLabel::IconLabel(const QIcon &picture, int side, QWidget *parent)
    : QWidget(parent), icon_(picture), side_(side) {
    setMinimumWidth(side);
    setFixedHeight(side);
}

void IconLabel::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    icon_.paint(&painter, QRect((width() - side_) / 2, 0, side_, side_));
}

} // namespace pinmora
