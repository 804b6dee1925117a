#include "ui/bindings.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>

namespace pinmora {

void Bindings::tie(Button &button, QAbstractButton *widget) {
    follow(button, widget);
    watch(button.title, [widget](const std::string &title) {
        if (!title.empty()) {
            widget->setText(QString::fromStdString(title));
        }
    });
    QObject::connect(widget, &QAbstractButton::clicked, widget, [&button] { button.press(); });
}

void Bindings::tie(Button &button, QAction *action) {
    watch(button.enabled, [action](bool enabled) { action->setEnabled(enabled); });
    watch(button.title, [action](const std::string &title) {
        if (!title.empty()) {
            action->setText(QString::fromStdString(title));
        }
    });
    QObject::connect(action, &QAction::triggered, action, [&button] { button.press(); });
}

void Bindings::show(TextField &field, QLabel *label) {
    label->setTextFormat(Qt::PlainText);
    followVisibility(field, label);
    watch(field.text,
          [label](const std::string &text) { label->setText(QString::fromStdString(text)); });
}

void Bindings::follow(Control &control, QWidget *widget) {
    watch(control.enabled, [widget](bool enabled) { widget->setEnabled(enabled); });
    followVisibility(control, widget);
}

/// A widget that has no parent yet would come up as a window of its own if it were shown now.
void Bindings::followVisibility(Control &control, QWidget *widget) {
    if (!control.visible.get()) {
        widget->hide();
    }
    keep(control.visible.onChange([widget](bool visible) { widget->setVisible(visible); }));
}

} // namespace pinmora
