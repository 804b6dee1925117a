#include "ui/side_window.h"

#include <QCloseEvent>
#include <QKeyEvent>

namespace pinmora {

SideWindow::SideWindow(Window &window, QWidget *parent)
    : QWidget(parent, Qt::Window), window_(window) {}

void SideWindow::follow() {
    bindings_.watch(window_.visible, [this](bool visible) { setVisible(visible); });
    bindings_.keep(window_.fronted.connect([this] {
        setWindowState(windowState() & ~Qt::WindowMinimized);
        raise();
        activateWindow();
    }));
}

void SideWindow::closeEvent(QCloseEvent *event) {
    event->ignore(); // what closes it is the outlet
    closeAsked();
}

void SideWindow::keyPressEvent(QKeyEvent *event) {
    if (event->matches(QKeySequence::Cancel) || event->matches(QKeySequence::Close)) {
        closeAsked();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace pinmora
