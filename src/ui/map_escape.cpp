#include "ui/map_escape.h"

#include "ui/work_window.h"

#include <QApplication>
#include <QKeyEvent>

#include <utility>

namespace pinmora {

MapEscape::MapEscape(Observable<bool> &waits, std::function<void()> giveUp, QObject *parent)
    : QObject(parent), giveUp_(std::move(giveUp)),
      following_(waits.onChange([this](bool isWaiting) {
          if (isWaiting) {
              qApp->installEventFilter(this);
          } else {
              qApp->removeEventFilter(this);
          }
      })) {}

bool MapEscape::eventFilter(QObject *, QEvent *event) {
    if (event->type() != QEvent::KeyPress ||
        static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape ||
        QApplication::activeModalWidget() || QApplication::activePopupWidget()) {
        return false;
    }
    if (const QWidget *const active = QApplication::activeWindow();
        active && !qobject_cast<const WorkWindow *>(active)) {
        return false;
    }
    giveUp_();
    return true;
}

} // namespace pinmora
