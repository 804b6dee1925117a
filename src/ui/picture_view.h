#pragma once

#include "outlets/image_well.h"
#include "ui/bindings.h"

#include <QPixmap>
#include <QTimer>
#include <QWidget>

namespace pinmora {

/// Shows the picture of a well, scaled to fit and never larger than its own pixels. While the
/// picture is on its way it says so.
class PictureView : public QWidget {
    Q_OBJECT

public:
    /// Both must outlive the view.
    PictureView(ImageWell &well, Observable<bool> &loading, QWidget *parent = nullptr);

    /// Where the picture stands in the view.
    QRect pictureRect() const;
    /// The picture's size when each of its pixels is one of the screen's; empty without one.
    QSize actualSize() const;
    QSize sizeHint() const override { return {480, 320}; }
    QSize minimumSizeHint() const override { return {96, 72}; }

Q_SIGNALS:
    void pictureChanged();
    void clicked(const QPoint &at);
    void doubleClicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void showPicture(const Picture &picture);
    void scale();

    Picture picture_;
    QPixmap scaled_; ///< the picture as it was last scaled, perhaps for another size
    QTimer sizeSettled_;
    Observable<bool> &loading_;
    Bindings bindings_;
};

} // namespace pinmora
