#include "ui/field_bindings.h"

#include "coords/coordinate_field.h"
#include "outlets/selector.h"
#include "shell/detail_fields.h"
#include "ui/bindings.h"
#include "ui/field_edit.h"
#include "ui/note_edit.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QCoreApplication>

namespace pinmora {

namespace {

/// Text, problem and state; a keystroke reaches the field at once.
void tieText(Bindings &bindings, CheckedField &field, FieldEdit *edit) {
    bindings.follow(field, edit);
    bindings.watch(field.text, [edit](const std::string &text) {
        const QString shown = QString::fromStdString(text);
        if (edit->text() != shown) {
            edit->setText(shown);
        }
    });
    bindings.watch(field.problem, [edit](const std::string &why) {
        edit->showProblem(QString::fromStdString(why));
    });
    QObject::connect(edit, &FieldEdit::textEdited, edit,
                     [&field](const QString &text) { field.text.set(text.toStdString()); });
}

template <class Field>
bool revertEdited(Field &field) {
    const bool edited = field.isEdited();
    field.revert();
    return edited;
}

template <class Field>
void tieFinishing(Field &field, FieldEdit *edit) {
    QObject::connect(edit, &FieldEdit::editingFinished, edit, [&field, edit] {
        field.finished.emit();
        const int cursor = edit->cursorPosition();
        edit->setText(edit->text()); // from here on, undo is the program's
        edit->setCursorPosition(cursor);
        edit->setModified(false);
    });
    edit->setRevert([&field] { return revertEdited(field); });
}

QString hintFor(bool differs) {
    //: in a field: the selected photos have several values
    return differs ? QCoreApplication::translate("ui", "several") : QString();
}

} // namespace

void tie(Bindings &bindings, CoordinateField &field, FieldEdit *edit) {
    tieText(bindings, field, edit);
    tieFinishing(field, edit);
}

void tie(Bindings &bindings, DetailField &field, FieldEdit *edit) {
    tieText(bindings, field, edit);
    tieFinishing(field, edit);
    bindings.watch(field.differs,
                   [edit](bool differs) { edit->setPlaceholderText(hintFor(differs)); });
}

void tie(Bindings &bindings, DetailField &field, NoteEdit *edit) {
    bindings.follow(field, edit);
    bindings.watch(field.text, [edit](const std::string &text) {
        const QString shown = QString::fromStdString(text);
        if (edit->toPlainText() != shown) {
            edit->setPlainText(shown);
        }
    });
    bindings.watch(field.differs,
                   [edit](bool differs) { edit->setPlaceholderText(hintFor(differs)); });
    QObject::connect(edit, &NoteEdit::textChanged, edit, [&field, edit] {
        if (edit->hasFocus()) {
            field.text.set(edit->toPlainText().toStdString());
        }
    });
    QObject::connect(edit, &NoteEdit::editingFinished, edit, [&field] { field.finished.emit(); });
    edit->setRevert([&field] { return revertEdited(field); });
}

void tie(Bindings &bindings, CheckedField &field, FieldEdit *edit) {
    tieText(bindings, field, edit);
}

void tie(Bindings &bindings, Selector &selector, QComboBox *box) {
    bindings.follow(selector, box);
    bindings.watch(selector.selectedTag,
                   [box](int tag) { box->setCurrentIndex(box->findData(tag)); });
    QObject::connect(box, &QComboBox::activated, box, [&selector, box](int index) {
        selector.choose(box->itemData(index).toInt());
    });
}

void tie(Bindings &bindings, Selector &selector, QButtonGroup *group) {
    bindings.watch(selector.enabled, [group](bool enabled) {
        for (QAbstractButton *button : group->buttons()) {
            button->setEnabled(enabled);
        }
    });
    bindings.watch(selector.selectedTag, [group](int tag) {
        if (QAbstractButton *button = group->button(tag)) {
            button->setChecked(true);
        }
    });
    QObject::connect(group, &QButtonGroup::idClicked, group,
                     [&selector](int id) { selector.choose(id); });
}

} // namespace pinmora
