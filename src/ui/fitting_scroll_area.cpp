#include "ui/fitting_scroll_area.h"

#include "ui/theme.h"

#include <QBoxLayout>
#include <QEvent>
#include <QFrame>
#include <QScrollBar>

#include <algorithm>

namespace pinmora {

FittingScrollArea::FittingScrollArea(const QList<QWidget *> &widgets, QWidget *parent)
    : QScrollArea(parent) {
    auto *content = new QWidget;
    row_ = new QHBoxLayout(content);
    row_->setContentsMargins(0, 0, 0, 0);
    row_->setSpacing(2 * spacing);
    for (QWidget *widget : widgets) {
        if (row_->count() > 0) {
            auto *line = new QFrame;
            line->setFrameShape(QFrame::VLine);
            line->setFrameShadow(QFrame::Plain);
            row_->addStretch(1);
            row_->addWidget(line);
            lines_.append(line);
        }
        row_->addWidget(widget, 0, Qt::AlignTop);
        widget->installEventFilter(this);
    }
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // what takes the focus in it comes into sight
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setWidget(content);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    // The ground is that of what it stands on.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
}

QSize FittingScrollArea::sizeHint() const {
    return widget()->sizeHint();
}

QSize FittingScrollArea::minimumSizeHint() const {
    int widest = 0;
    for (int i = 0; i < row_->count(); ++i) {
        if (const QWidget *const one = row_->itemAt(i)->widget()) {
            widest = std::max(widest, one->minimumSizeHint().width());
        }
    }
    return {widest + verticalScrollBar()->sizeHint().width(),
            QScrollArea::minimumSizeHint().height()};
}

bool FittingScrollArea::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::LayoutRequest) {
        arrange();
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}

void FittingScrollArea::resizeEvent(QResizeEvent *event) {
    QScrollArea::resizeEvent(event);
    arrange();
}

void FittingScrollArea::arrange() {
    if (row_->direction() == QBoxLayout::LeftToRight) {
        widthOfRow_ = row_->totalMinimumSize().width();
    }
    const bool fits = width() >= widthOfRow_;
    const auto direction = fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    if (row_->direction() != direction) {
        Q_EMIT stackingChanged(!fits);
        row_->setDirection(direction);
        for (QWidget *line : lines_) {
            line->setVisible(fits);
        }
        updateGeometry();
    }
}

} // namespace pinmora
