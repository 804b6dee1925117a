#pragma once

#include "outlets/window.h"
#include "shell/preview.h"
#include "ui/bindings.h"

#include <QScrollArea>

namespace pinmora {

class PictureView;

/// The window with one photo as large as the screen allows. A click shows it pixel by pixel, and
/// another one fits it in again; Escape closes.
class FullViewWindow : public QScrollArea {
    Q_OBJECT

public:
    /// All must outlive the window.
    FullViewWindow(Window &window, ImageWell &picture, Preview &preview, QWidget *parent = nullptr);

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setUp(bool up);
    void toggle(const QPoint &at);
    void setFitting(bool fitting);

    Window &window_;
    Preview &preview_;
    PictureView *view_;
    Bindings bindings_;
};

} // namespace pinmora
