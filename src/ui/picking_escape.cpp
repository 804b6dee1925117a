#include "ui/picking_escape.h"

#include "map/point_picking.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace pinmora {

PickingEscape::PickingEscape(PointPicking &picking, QObject *parent)
    : QObject(parent), picking_(picking) {
    following_ = picking.armed.onChange([this](bool armed) {
        if (armed) {
            QCoreApplication::instance()->installEventFilter(this);
        } else {
            QCoreApplication::instance()->removeEventFilter(this);
        }
    });
}

bool PickingEscape::eventFilter(QObject *, QEvent *event) {
    if (event->type() != QEvent::KeyPress ||
        static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape) {
        return false;
    }
    picking_.disarm();
    return true;
}

} // namespace pinmora
