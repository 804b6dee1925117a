#include "ui/fitting_scroll_area.h"

#include <QEvent>

namespace pinmora {

FittingScrollArea::FittingScrollArea(QWidget *content, QWidget *parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(content);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    // The ground is that of what it stands on.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    content->installEventFilter(this);
}

QSize FittingScrollArea::sizeHint() const {
    return widget()->sizeHint();
}

bool FittingScrollArea::eventFilter(QObject *watched, QEvent *event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}

} // namespace pinmora
