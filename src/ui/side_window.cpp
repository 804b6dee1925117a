#include "ui/side_window.h"

#include "ui/window_frame.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace pinmora {

SideWindow::SideWindow(Window &window, QWidget *parent, Over over)
    : QWidget(parent, Qt::Window), window_(window), over_(std::move(over)) {}

void SideWindow::follow() {
    bindings_.watch(window_.visible, [this](bool visible) {
        if (visible && !isVisible()) {
            comeUp();
        } else {
            setVisible(visible);
        }
    });
    bindings_.keep(window_.fronted.connect([this] {
        setWindowState(windowState() & ~Qt::WindowMinimized);
        raise();
        activateWindow();
    }));
}

/// In the middle of the other window, as far as the screen has room.
void SideWindow::comeUp() {
    if (const QWidget *const other = over_ ? over_() : nullptr) {
        const QRect room = other->screen()->availableGeometry();
        QRect place(QPoint(), size() + usualFrame);
        place.moveCenter(other->frameGeometry().center());
        place.moveRight(std::min(place.right(), room.right()));
        place.moveBottom(std::min(place.bottom(), room.bottom()));
        place.moveLeft(std::max(place.left(), room.left()));
        place.moveTop(std::max(place.top(), room.top()));
        move(place.topLeft());
    }
    show();
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
