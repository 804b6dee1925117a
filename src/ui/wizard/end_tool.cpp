#include "ui/wizard/end_tool.h"

#include "shell/pinmora_app_delegate.h"
#include "shell/subsystems.h"
#include "ui/name_typing.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace pinmora {

EndTool::EndTool(Pinmora_AppDelegate &delegate, QWidget *parent)
    : QWidget(parent), parts_(delegate.subsystems()), notifications_(delegate.notifications) {
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    addApply(*column);
    addNames(*column);
}

void EndTool::addApply(QVBoxLayout &column) {
    auto *const apply = new QPushButton(tr("Apply to All"), this);
    apply->setToolTip(tr("Gives every photo the position of the track point nearest in time"));
    apply->setStyleSheet(QStringLiteral("QPushButton { padding: 5px 32px; min-height: 24px; }"));
    apply->setAutoDefault(true);
    connect(apply, &QPushButton::clicked, this, [this] { parts_.matcher.applyToAllPictures(); });
    column.addWidget(apply, 0, Qt::AlignLeft);
    bindings_.watch(parts_.counts.counts, [apply](const Counts &now) {
        apply->setVisible(now.points > 0);
        apply->setEnabled(now.photos > 0);
    });
    bindings_.watch(parts_.matching.congrats1.visible,
                    [apply](bool isDone) { setRole(apply, isDone ? Role::Plain : Role::Default); });
}

void EndTool::addNames(QVBoxLayout &column) {
    TextField &name = parts_.renamingOutlets.newFileName3;
    auto *const edit = new QLineEdit;
    edit->setAccessibleName(tr("New name"));
    edit->setPlaceholderText(tr("New name, if you want one"));
    edit->setMinimumWidth(24 * spacing);
    connect(edit, &QLineEdit::textEdited, this, [this, edit, &name](const QString &text) {
        tellTyped(*edit, name, text, notifications_);
        parts_.wizardEnd.nameTyped(!text.isEmpty());
    });
    connect(edit, &QLineEdit::returnPressed, this,
            [this] { parts_.renamingOutlets.changeName3.press(); });
    bindings_.watch(name.text, [this, edit](const std::string &text) {
        if (edit->text() != QString::fromStdString(text)) {
            edit->setText(QString::fromStdString(text));
        }
        if (names_) {
            showNames();
        }
    });
    auto *const rename = new QPushButton(tr("Rename All"));
    rename->setToolTip(tr("Numbers all photos by the time when they were taken"));
    bindings_.tie(parts_.renamingOutlets.changeName3, rename);
    names_ = new QLabel;
    setRole(names_, Role::Quiet);
    names_->setTextFormat(Qt::PlainText);
    names_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // of any length
    auto *const row = new QHBoxLayout;
    row->setSpacing(spacing);
    row->addWidget(edit);
    row->addWidget(rename);
    row->addWidget(names_, 1);
    column.addLayout(row);
    showNames();
}

void EndTool::showNames() {
    const QString base = QString::fromStdString(parts_.renamingOutlets.newFileName3.text.get());
    //: an example of a name: trip_1, trip_2
    const QString shown = base.isEmpty() ? tr("trip") : base;
    names_->setText(tr("The copies are then called %1_1, %1_2, …").arg(shown));
}

} // namespace pinmora
