#include "ui/map_escape.h"

#include "ui/field_edit.h"
#include "ui/work_window.h"

#include <QApplication>
#include <QKeyEvent>

#include <utility>

namespace pinmora {
namespace {

/// Whether the key is for somebody else: a sheet, a menu, another window, or a field with something
/// typed, which has its text of before back first.
bool isElsewhere() {
    const QWidget *const active = QApplication::activeWindow();
    const auto *const window = qobject_cast<const WorkWindow *>(active);
    const auto *const field = qobject_cast<const FieldEdit *>(QApplication::focusWidget());
    return QApplication::activePopupWidget() || (active && !window) ||
           (window && window->sheet()) || (field && field->isModified());
}

} // namespace

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
        static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape || isElsewhere()) {
        return false;
    }
    giveUp_();
    return true;
}

} // namespace pinmora
