#include "ui/note_edit.h"

#include <QKeyEvent>

namespace pinmora {

NoteEdit::NoteEdit(int lines, QWidget *parent) : QPlainTextEdit(parent), lines_(lines) {
    setTabChangesFocus(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    document()->setDocumentMargin(3);
    setViewportMargins(3, 0, 3, 0); // text begins where it does in a line edit
}

QSize NoteEdit::sizeOf(int lines) const {
    const int frame = 2 * frameWidth() + 2 * qRound(document()->documentMargin());
    return {fontMetrics().averageCharWidth() * 24, fontMetrics().lineSpacing() * lines + frame};
}

QSize NoteEdit::sizeHint() const {
    return sizeOf(lines_);
}

QSize NoteEdit::minimumSizeHint() const {
    return sizeOf(1);
}

void NoteEdit::keyPressEvent(QKeyEvent *event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && !event->modifiers().testFlag(Qt::ShiftModifier)) {
        Q_EMIT editingFinished();
    } else if (event->key() == Qt::Key_Escape) {
        event->setAccepted(revert_ && revert_());
    } else {
        QPlainTextEdit::keyPressEvent(event);
    }
}

void NoteEdit::focusOutEvent(QFocusEvent *event) {
    QPlainTextEdit::focusOutEvent(event);
    // Neither a menu of its own nor another program's window is leaving it.
    if (event->reason() != Qt::PopupFocusReason) {
        Q_EMIT editingFinished();
    }
}

} // namespace pinmora
