#include "ui/icon_label.h"

#include <QPainter>

namespace pinmora {

IconLabel::IconLabel(const QIcon &picture, int side, QWidget *parent)
    : QWidget(parent), icon_(picture), side_(side) {
    setMinimumSize(side, side / 2);
    setMaximumHeight(side);
}

QSize IconLabel::sizeHint() const {
    return {side_, side_};
}

void IconLabel::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    icon_.paint(&painter, rect());
}

} // namespace pinmora
