#pragma once

class QButtonGroup;
class QComboBox;

namespace pinmora {

class Bindings;
class FieldEdit;
class NoteEdit;
struct CheckedField;
struct CoordinateField;
struct DetailField;
struct Selector;

// Ties of controls that are edited, besides those of Bindings. Text goes to the outlet with every
// keystroke; Return and leaving the field finish it, Escape reverts it. Problems show at the field.

void tie(Bindings &bindings, CoordinateField &field, FieldEdit *edit);
void tie(Bindings &bindings, DetailField &field, FieldEdit *edit);
void tie(Bindings &bindings, DetailField &field, NoteEdit *edit);
/// Nothing is taken over on finishing: others read the text when they need it.
void tie(Bindings &bindings, CheckedField &field, FieldEdit *edit);

/// The tags of the cells are the items' data.
void tie(Bindings &bindings, Selector &selector, QComboBox *box);
/// The tags of the cells are the buttons' ids.
void tie(Bindings &bindings, Selector &selector, QButtonGroup *group);

} // namespace pinmora
