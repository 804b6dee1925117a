#pragma once

class QLineEdit;
class QString;

namespace pinmora {

class NotificationCentre;
struct TextField;

/// A person has typed a new name for photos into an edit: the field gets it, and those who offer
/// to give it hear of it.
void tellTyped(QLineEdit &edit, TextField &field, const QString &text,
               NotificationCentre &notifications);

/// What is typed from now on begins anew.
void beginTyping(QLineEdit &edit);

} // namespace pinmora
