#include "ui/download_dialog.h"

#include "ui/theme.h"
#include "ui/work_bar.h"
#include "update/version_download.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace pinmora {

DownloadDialog::DownloadDialog(versionDownload &download, WidgetOf widgetOf, QWidget *owner)
    : SheetDialog(
          download.theDownloadWindow, std::move(widgetOf),
          [&download] { download.stopButton.press(); }, owner) {
    setMinimumWidth(52 * spacing);
    setWindowTitle(tr("Download"));
    QLabel *const heading = addText(Role::Title);
    heading->setAccessibleName(tr("What is being done"));
    bindings_.show(download.theMessageHeader, heading);
    QProgressBar *const bar = makeWorkBar(download.downloadIndic, bindings_);
    bindings_.follow(download.downloadIndic, bar);
    column()->addWidget(bar);
    QLabel *const state = addText(Role::Quiet);
    state->setAccessibleName(tr("How far it has come"));
    bindings_.show(download.theStateMessage, state);
    QLabel *const error = addText(Role::Problem);
    error->setAccessibleName(tr("What is wrong"));
    bindings_.show(download.theErrorMessage, error);
    // One of the two speaks; with neither, the line keeps its place.
    state->setMinimumHeight(state->fontMetrics().height());
    bindings_.watch(download.theErrorMessage.text, [this, state, error](const std::string &text) {
        error->setVisible(!text.empty());
        state->setVisible(text.empty());
        if (isVisible()) {
            fit();
        }
    });
    auto *stop = new QPushButton(tr("Stop"));
    stop->setToolTip(tr("Ends the download; nothing is written"));
    bindings_.tie(download.stopButton, stop);
    bindings_.watch(download.theErrorMessage.text, [stop](const std::string &text) {
        stop->setText(text.empty() ? tr("Stop") : tr("Close"));
    });
    addButtons({}, {stop});
}

} // namespace pinmora
