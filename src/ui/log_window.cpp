#include "ui/log_window.h"

#include "outlets/workspace.h"
#include "platform/log_file.h"
#include "ui/elided_label.h"
#include "ui/roles.h"
#include "ui/theme.h"

#include <QEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace pinmora {

LogWindow::LogWindow(Window &window, const LogFile &log, const Workspace &workspace,
                     QWidget *parent)
    : SideWindow(window, parent), log_(log), text_(new QPlainTextEdit) {
    setWindowTitle(tr("Pinmora - Log"));
    resize(100 * spacing, 52 * spacing);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(2 * spacing, 2 * spacing, 2 * spacing, 2 * spacing);
    column->setSpacing(spacing + smallGap);
    auto *path = new ElidedLabel;
    path->setWholeText(QFile::decodeName(QByteArray::fromStdString(log.path().native())));
    setRole(path, Role::Quiet);
    auto *folder = new QPushButton(tr("Open Folder"));
    folder->setToolTip(tr("Opens the folder in which the log is kept"));
    connect(folder, &QPushButton::clicked, this,
            [&workspace, &log] { workspace.openFile(log.path().parent_path().native()); });
    auto *row = new QHBoxLayout;
    row->addWidget(path, 1);
    row->addWidget(folder);
    text_->setReadOnly(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text_->setAccessibleName(tr("What has gone wrong"));
    text_->setPlaceholderText(tr("Nothing has gone wrong so far. When photos are saved, what "
                                 "cannot be written is told here."));
    column->addWidget(text_, 1);
    column->addLayout(row);
    setTabOrder(text_, folder);
    bindings_.keep(window.fronted.connect([this] { read(); }));
    follow();
}

/// Where a person reads on stays where it is, unless that is the end.
void LogWindow::read() {
    const QString text = QString::fromStdString(log_.text()).trimmed();
    if (text == text_->toPlainText()) {
        return;
    }
    QScrollBar *const bar = text_->verticalScrollBar();
    const int place = bar->value() == bar->maximum() ? -1 : bar->value();
    text_->setPlainText(text);
    text_->moveCursor(QTextCursor::End);
    bar->setValue(place < 0 ? bar->maximum() : place);
}

void LogWindow::showEvent(QShowEvent *event) {
    read();
    SideWindow::showEvent(event);
}

void LogWindow::changeEvent(QEvent *event) {
    SideWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        read();
    }
}

} // namespace pinmora
