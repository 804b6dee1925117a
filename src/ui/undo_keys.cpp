#include "ui/undo_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>

namespace pinmora {
namespace {

struct Own {
    bool undo;
    bool redo;
};

Own ownOf(const QObject *watched) {
    if (const auto *line = qobject_cast<const QLineEdit *>(watched)) {
        return {line->isUndoAvailable(), line->isRedoAvailable()};
    }
    if (const auto *text = qobject_cast<const QPlainTextEdit *>(watched)) {
        return {text->document()->isUndoAvailable(), text->document()->isRedoAvailable()};
    }
    if (const auto *box = qobject_cast<const QSpinBox *>(watched)) {
        return ownOf(box->findChild<QLineEdit *>());
    }
    return {true, true};
}

} // namespace

UndoKeys::UndoKeys(QObject *parent) : QObject(parent) {
    qApp->installEventFilter(this);
}

bool UndoKeys::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::ShortcutOverride) {
        return false;
    }
    const auto *const key = static_cast<QKeyEvent *>(event);
    const bool isUndo = key->matches(QKeySequence::Undo);
    if (!isUndo && !key->matches(QKeySequence::Redo)) {
        return false;
    }
    const Own own = ownOf(watched);
    if (isUndo ? own.undo : own.redo) {
        return false;
    }
    event->ignore();
    return true;
}

} // namespace pinmora
