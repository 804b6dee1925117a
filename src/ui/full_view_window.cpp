#include "ui/full_view_window.h"

#include "ui/picture_view.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>

namespace pinmora {

FullViewWindow::FullViewWindow(Window &window, ImageWell &picture, Preview &preview,
                               QWidget *parent)
    : QScrollArea(parent), window_(window), preview_(preview),
      view_(new PictureView(picture, preview.loading)) {
    setWindowFlag(Qt::Window);
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignCenter);
    view_->setAccessibleName(tr("Picture at full size"));
    setWidget(view_);
    setFitting(true);
    resize(screen()->availableSize() * 4 / 5);
    connect(view_, &PictureView::clicked, this, &FullViewWindow::toggle);
    // The next photo may have another size, and its part that is worth seeing is elsewhere.
    connect(view_, &PictureView::pictureChanged, this, [this] { setFitting(true); });
    bindings_.watch(window.title, [this](const std::string &title) {
        setWindowTitle(QString::fromStdString(title));
    });
    bindings_.watch(window.visible, [this](bool visible) { setUp(visible); });
    bindings_.keep(window.fronted.connect([this] {
        raise();
        activateWindow();
    }));
}

void FullViewWindow::setUp(bool up) {
    if (up != isVisible()) {
        preview_.showFullSize(up);
        setFitting(true);
        setVisible(up);
    }
}

void FullViewWindow::closeEvent(QCloseEvent *event) {
    event->ignore(); // what closes it is the outlet
    window_.close();
}

void FullViewWindow::keyPressEvent(QKeyEvent *event) {
    if (event->matches(QKeySequence::Cancel) || event->matches(QKeySequence::Close)) {
        window_.close();
    } else {
        QScrollArea::keyPressEvent(event);
    }
}

void FullViewWindow::setFitting(bool fitting) {
    setWidgetResizable(fitting);
    const bool canGrow = view_->pictureRect().width() < view_->actualSize().width();
    view_->setCursor(!fitting || canGrow ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

/// The point that was clicked on stays under the pointer as far as it can.
void FullViewWindow::toggle(const QPoint &at) {
    const QRect fitted = view_->pictureRect();
    const QSize actual = view_->actualSize();
    if (!widgetResizable()) {
        setFitting(true);
        return;
    }
    if (fitted.isEmpty() || fitted.width() >= actual.width()) {
        return;
    }
    const QPointF within =
        QPointF(at - fitted.topLeft()) * (double{1} * actual.width() / fitted.width());
    const QPoint onScreen = view_->mapTo(viewport(), at);
    setFitting(false);
    view_->resize(actual);
    horizontalScrollBar()->setValue(qRound(within.x()) - onScreen.x());
    verticalScrollBar()->setValue(qRound(within.y()) - onScreen.y());
}

} // namespace pinmora
