#include "ui/picture_view.h"

#include "ui/theme.h"

#include <QMouseEvent>
#include <QPainter>

namespace pinmora {

namespace {

/// While a view is being resized a picture scaled before is drawn; scaling one of many megapixels
/// for each step would make that stutter.
constexpr int settleTime = 60; // ms

} // namespace

PictureView::PictureView(ImageWell &well, Observable<bool> &loading, QWidget *parent)
    : QWidget(parent), loading_(loading) {
    sizeSettled_.setSingleShot(true);
    sizeSettled_.setInterval(settleTime);
    connect(&sizeSettled_, &QTimer::timeout, this, [this] {
        scale();
        update();
    });
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    bindings_.follow(well, this);
    bindings_.watch(well.image, [this](const Picture &picture) { showPicture(picture); });
    bindings_.keep(loading.onChange([this](bool) { update(); }));
}

void PictureView::showPicture(const Picture &picture) {
    picture_ = picture && !picture->isNull() ? picture : nullptr;
    scaled_ = {};
    setAccessibleDescription(
        picture_ ? tr("%1 by %2 pixels").arg(picture_->width()).arg(picture_->height())
                 : QString());
    update();
    Q_EMIT pictureChanged();
}

QSize PictureView::actualSize() const {
    return picture_ ? (QSizeF(picture_->size()) / devicePixelRatioF()).toSize() : QSize();
}

QRect PictureView::pictureRect() const {
    const QSize actual = actualSize();
    QSize shown = actual.scaled(size(), Qt::KeepAspectRatio);
    if (shown.width() > actual.width()) {
        shown = actual;
    }
    shown = shown.expandedTo(picture_ ? QSize(1, 1) : QSize());
    return {QPoint((width() - shown.width()) / 2, (height() - shown.height()) / 2), shown};
}

void PictureView::scale() {
    const QRect place = pictureRect();
    if (!picture_ || place.isEmpty()) {
        return;
    }
    const QSize pixels = (QSizeF(place.size()) * devicePixelRatioF()).toSize();
    scaled_ = QPixmap::fromImage(
        pixels == picture_->size()
            ? *picture_
            : picture_->scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    scaled_.setDevicePixelRatio(devicePixelRatioF());
}

void PictureView::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    if (!picture_) {
        if (loading_.get()) {
            painter.setPen(colours().quietText);
            painter.drawText(rect(), Qt::AlignCenter, tr("Loading…"));
        }
        return;
    }
    if (scaled_.isNull()) {
        scale();
    }
    painter.drawPixmap(pictureRect(), scaled_);
}

void PictureView::resizeEvent(QResizeEvent *) {
    if (!scaled_.isNull()) {
        sizeSettled_.start();
    }
}

/// The release that makes it a click is wanted as well.
void PictureView::mousePressEvent(QMouseEvent *event) {
    event->setAccepted(event->button() == Qt::LeftButton);
}

void PictureView::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        Q_EMIT clicked(event->position().toPoint());
    }
}

void PictureView::mouseDoubleClickEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        Q_EMIT doubleClicked();
    }
}

} // namespace pinmora
