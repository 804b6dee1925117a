#include "ui/field_edit.h"

#include <QKeyEvent>
#include <QStyle>

namespace pinmora {

FieldEdit::FieldEdit(QWidget *parent) : QLineEdit(parent) {}

void FieldEdit::fitTo(const QString &widest) {
    constexpr int padding = 3;
    constexpr int around = 2 * (padding + 1 + 2); // with the frame, and what a line edit adds
    setStyleSheet(QStringLiteral("QLineEdit { padding: 3px %1px; }").arg(padding));
    setFixedWidth(fontMetrics().horizontalAdvance(widest) + around);
}

void FieldEdit::showProblem(const QString &why) {
    setToolTip(why);
    setAccessibleDescription(why);
    setProperty("problem", !why.isEmpty());
    style()->unpolish(this); // the style sheet looks at properties only then
    style()->polish(this);
}

bool FieldEdit::event(QEvent *event) {
    const bool escape =
        (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    if (escape && event->type() == QEvent::ShortcutOverride && isModified()) {
        event->accept(); // or a shortcut of the window would take the key
        return true;
    }
    if (escape && event->type() == QEvent::KeyPress && revert_ && revert_()) {
        setModified(false);
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

} // namespace pinmora
