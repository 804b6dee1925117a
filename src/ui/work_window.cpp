#include "ui/work_window.h"

#include "platform/defaults.h"
#include "shell/pinmora_app_delegate.h"
#include "shell/subsystems.h"
#include "ui/busy_state.h"
#include "ui/file_names.h"
#include "ui/photo_drag.h"
#include "ui/stored_bytes.h"
#include "ui/theme.h"
#include "ui/window_frame.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QScreen>

#include <utility>
#include <vector>

namespace pinmora {
namespace {

DragInfo dragInfo(const QDropEvent &event, const QObject *window) {
    bool offersFiles = false;
    for (const QUrl &url : event.mimeData()->urls()) {
        offersFiles = offersFiles || url.isLocalFile();
    }
    const auto *source = qobject_cast<const QWidget *>(event.source());
    return {.offersFiles = offersFiles,
            .fromMainWindow = source && source->window() == window,
            .sourceOperations = static_cast<unsigned>(event.possibleActions().toInt())};
}

/// Whatever the source would like to do with its files: they are only read.
void answerDrag(QDropEvent &event, unsigned operations) {
    event.setDropAction(operations != 0 ? Qt::CopyAction : Qt::IgnoreAction);
    event.setAccepted(operations != 0);
}

} // namespace

WorkWindow::WorkWindow(const WorkWindowParts &parts, Window &window, std::string_view geometryKey)
    : parts_(parts), delegate_(parts_.delegate), subsystems_(delegate_.subsystems()),
      window_(window), geometryKey_(geometryKey) {
    setAcceptDrops(true);
}

void WorkWindow::follow() {
    bindings_.watch(window_.title, [this](const std::string &title) {
        setWindowTitle(QString::fromStdString(title));
    });
    bindings_.watch(window_.visible, [this](bool visible) { setVisible(visible); });
    bindings_.keep(window_.fronted.connect([this] {
        setWindowState(windowState() & ~Qt::WindowMinimized);
        show();
        raise();
        activateWindow();
    }));
}

/// Whether the window may go is the controller's word.
void WorkWindow::closeEvent(QCloseEvent *event) {
    event->ignore();
    Q_EMIT quitAsked();
}

void WorkWindow::changeEvent(QEvent *event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ThemeChange) {
        applyTheme(*qApp, appearanceFrom(delegate_.defaults));
    } else if (event->type() == QEvent::PaletteChange) {
        Q_EMIT coloursChanged();
    } else if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        // Some window managers let the window below a sheet take the keyboard, which it is deaf to.
        if (QWidget *const open = sheet()) {
            open->activateWindow();
        }
    }
}

QWidget *WorkWindow::sheet() const {
    QWidget *const open = QApplication::activeModalWidget();
    const bool isOurs = open && (open->windowModality() == Qt::ApplicationModal ||
                                 (open->parentWidget() && open->parentWidget()->window() == this));
    return isOurs ? open : nullptr;
}

void WorkWindow::restoreGeometryOr(QSize first) {
    const QByteArray geometry = storedBytes(delegate_.defaults, geometryKey_);
    if (geometry.isEmpty() || !restoreGeometry(geometry)) {
        resize(first.boundedTo(screen()->availableSize() - usualFrame));
    }
}

void WorkWindow::keepLayout() {
    storeBytes(delegate_.defaults, geometryKey_, saveGeometry());
}

void WorkWindow::dragEnterEvent(QDragEnterEvent *event) {
    if (!parts_.busy.isBusy() && !carriesPhotos(*event)) { // those are the map's
        answerDrag(*event, subsystems_.photoIntake.draggingEntered(dragInfo(*event, this)));
    }
}

void WorkWindow::dragMoveEvent(QDragMoveEvent *event) {
    answerDrag(*event, subsystems_.photoIntake.draggingUpdated(dragInfo(*event, this)));
}

void WorkWindow::dragLeaveEvent(QDragLeaveEvent *) {
    subsystems_.photoIntake.draggingExited();
}

/// The load waits until the drag has ended: its source is held up meanwhile.
void WorkWindow::dropEvent(QDropEvent *event) {
    std::vector<std::string> paths;
    for (const QUrl &url : event->mimeData()->urls()) {
        if (std::string path = filePath(url); !path.empty()) {
            paths.push_back(std::move(path));
        }
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    parts_.busy.whenIdle([&intake = subsystems_.photoIntake, paths = std::move(paths)] {
        intake.performDragOperation(paths);
    });
}

} // namespace pinmora
