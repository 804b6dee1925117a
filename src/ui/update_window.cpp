#include "ui/update_window.h"

#include "ui/download_dialog.h"
#include "ui/roles.h"
#include "ui/save_panel_dialog.h"
#include "ui/theme.h"
#include "ui/work_bar.h"
#include "update/update_test.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace pinmora {

UpdateWindow::UpdateWindow(updateTest &update, QWidget *parent)
    : SideWindow(update.theWindow, parent), update_(update) {
    resize(58 * spacing, 27 * spacing);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(3 * spacing, 3 * spacing, 3 * spacing, 2 * spacing);
    column->setSpacing(2 * spacing);
    column->addLayout(makeTexts(), 1);
    column->addLayout(makeButtons());
    const WidgetOf widgetOf = [this](const Window &) -> QWidget * { return this; };
    new DownloadDialog(update.doDownload, widgetOf, this);
    new SavePanelDialog(update.savePanel, widgetOf, this);
    bindings_.watch(update.theWindow.title, [this](const std::string &title) {
        setWindowTitle(QString::fromStdString(title));
    });
    follow();
}

QLayout *UpdateWindow::makeTexts() {
    const auto text = [this](TextField &field, Role role, const QString &name) {
        auto *label = new QLabel;
        label->setWordWrap(true);
        label->setAccessibleName(name);
        setRole(label, role);
        bindings_.show(field, label);
        return label;
    };
    auto *column = new QVBoxLayout;
    column->setSpacing(spacing);
    column->addWidget(text(update_.theMessageHeader, Role::Title, tr("Outcome")));
    auto *message = new QLabel;
    message->setWordWrap(true);
    message->setAccessibleName(tr("Message"));
    message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    bindings_.show(update_.theMessage, message);
    column->addWidget(message);
    column->addStretch();
    column->addWidget(text(update_.progText, Role::Quiet, tr("What is going on")));
    QProgressBar *const bar = makeWorkBar(update_.progIndic, bindings_);
    QSizePolicy policy = bar->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // nothing jumps when it is done
    bar->setSizePolicy(policy);
    bindings_.follow(update_.progIndic, bar);
    column->addWidget(bar);
    return column;
}

QLayout *UpdateWindow::makeButtons() {
    auto *noCheck = new QCheckBox(tr("Do not check at start"));
    noCheck->setToolTip(tr("Newer versions are looked for only when you ask"));
    bindings_.follow(update_.noCheck, noCheck);
    bindings_.watch(update_.noCheck.on, [noCheck](bool on) { noCheck->setChecked(on); });
    connect(noCheck, &QCheckBox::toggled, this, [this](bool on) { update_.noCheck.on.set(on); });
    auto *close = new QPushButton(tr("Close"));
    auto *download = new QPushButton(tr("Download"));
    download->setToolTip(tr("Asks for a file, and fetches the newer version into it"));
    setRole(download, Role::Default);
    bindings_.tie(update_.closeButton, close);
    bindings_.tie(update_.downloadButton, download);
    auto *row = new QHBoxLayout;
    row->setSpacing(spacing);
    row->addWidget(noCheck);
    row->addStretch();
    row->addWidget(close);
    row->addWidget(download);
    return row;
}

void UpdateWindow::closeAsked() {
    update_.closeButton.press();
}

} // namespace pinmora
