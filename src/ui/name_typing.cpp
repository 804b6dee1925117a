#include "ui/name_typing.h"

#include "outlets/controls.h"
#include "platform/notification_centre.h"
#include "shell/inspector.h"

#include <QLineEdit>
#include <QVariant>

namespace pinmora {
namespace {

constexpr const char *begun = "begun";

} // namespace

void tellTyped(QLineEdit &edit, TextField &field, const QString &text,
               NotificationCentre &notifications) {
    if (!edit.property(begun).toBool()) {
        edit.setProperty(begun, true);
        notifications.post(controlTextDidBeginEditing, static_cast<const TextField *>(&field));
    }
    field.text.set(text.toStdString());
    notifications.post(controlTextDidChange, static_cast<const TextField *>(&field));
}

void beginTyping(QLineEdit &edit) {
    edit.setProperty(begun, false);
}

} // namespace pinmora
