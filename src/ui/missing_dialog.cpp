#include "ui/missing_dialog.h"

#include "photos/file_browser.h"
#include "platform/translation.h"
#include "saving/missing_photos.h"
#include "ui/column_browser.h"
#include "ui/inspector_text.h"
#include "ui/missing_list.h"
#include "ui/picture_view.h"
#include "ui/theme.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace pinmora {
namespace {

constexpr int sideWidth = 27 * spacing;

/// List, browser and what stands beside them: as large as can be worked with at ease, and no larger
/// than a small screen allows.
class Body : public QWidget {
public:
    QSize sizeHint() const override { return {106 * spacing, 49 * spacing}; }
    QSize minimumSizeHint() const override { return {80 * spacing, 33 * spacing}; }
    bool hasHeightForWidth() const override { return false; }
};

QVBoxLayout *sideColumn(QWidget *widget) {
    widget->setFixedWidth(sideWidth);
    auto *const column = new QVBoxLayout(widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    return column;
}

QPushButton *plainButton(const QString &title, const QString &tip) {
    auto *const button = new QPushButton(title);
    button->setAutoDefault(false); // Return confirms, wherever the focus is
    button->setToolTip(tip);
    return button;
}

} // namespace

MissingDialog::MissingDialog(MissingPhotosOutlets &outlets, MissingPhotos &missing,
                             FileBrowser &browser, WidgetOf widgetOf, QWidget *owner)
    : SheetDialog(
          outlets.pictErrorWindow, std::move(widgetOf),
          [&outlets] { outlets.closeErrorButton.press(); }, owner),
      outlets_(outlets), missing_(missing) {
    setWindowTitle(tr("Missing Photos"));
    setSizeGripEnabled(true);
    addHeading();
    addBody(browser);
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    column()->addWidget(line);
    addWaysOut();
    connect(list_->model(), &QAbstractItemModel::modelReset, this, &MissingDialog::showHeading);
    bindings_.watch(outlets.errorOK.visible, [this](bool) { showHeading(); });
}

void MissingDialog::aboutToShow() {
    list_->catchUp();
    list_->setFocus();
}

void MissingDialog::addHeading() {
    heading_ = addText(Role::Title);
    words_ = addText(Role::Quiet);
}

void MissingDialog::showHeading() {
    const int count = list_->model()->rowCount();
    const bool forSaving = outlets_.saveFromErrorWindow.visible.get();
    heading_->setText(count == 0 ? tr("No photo is missing any more")
                                 : QString::fromStdString(
                                       translated("ui", "%Ln photos are no longer where they were",
                                                  "%Ln photo is no longer where it was",
                                                  static_cast<std::size_t>(count))));
    if (count == 0) {
        words_->setText(forSaving ? tr("All photos can be saved now.")
                                  : tr("Every photo of the list has its file."));
    } else {
        words_->setText(
            forSaving ? tr("Choose a photo, then show where it is now. What cannot be found can be "
                           "left out of this save or removed from the list; nothing else is lost.")
                      : tr("Choose a photo, then show where it is now. What cannot be found can be "
                           "removed from the list; nothing else is lost."));
    }
}

void MissingDialog::addBody(FileBrowser &browser) {
    auto *body = new Body;
    auto *grid = new QGridLayout(body);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(2 * spacing);
    grid->setVerticalSpacing(spacing + smallGap);
    auto *frame = new QFrame; // a table has no round corners of its own
    setRole(frame, Role::Framed);
    list_ = new MissingList(missing_.missingImages, browser.home());
    auto *inFrame = new QVBoxLayout(frame);
    inFrame->setContentsMargins(1, 1, 1, 1);
    inFrame->addWidget(list_);
    columns_ = new ColumnBrowser(outlets_.browser, browser);
    bindings_.follow(outlets_.browser.fsBrowser, columns_);
    grid->addWidget(frame, 0, 0);
    grid->addWidget(makeListActions(), 0, 1);
    grid->addWidget(columns_, 1, 0);
    grid->addWidget(makeChoice(), 1, 1);
    grid->setRowStretch(0, 17);
    grid->setRowStretch(1, 21);
    grid->setColumnStretch(0, 1);
    column()->addWidget(body, 1);
}

QWidget *MissingDialog::makeListActions() {
    auto *side = new QWidget;
    QVBoxLayout *const actions = sideColumn(side);
    auto *find = plainButton(tr("Find in Folder…"), tr("Looks for all of these photos by their "
                                                       "names, in a folder and all below it"));
    auto *outcome = new QLabel;
    outcome->setWordWrap(true);
    outcome->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    outcome->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    outcome->setAccessibleName(tr("What the search has found"));
    setRole(outcome, Role::Quiet);
    auto *remove = plainButton(tr("Remove"), tr("Takes the selected photos out of the library; "
                                                "Undo brings them back"));
    auto *removeAll = plainButton(tr("Remove All"), tr("Takes all photos of this list out of the "
                                                       "library; Undo brings them back"));
    actions->addWidget(find);
    actions->addWidget(outcome, 1);
    actions->addWidget(remove);
    actions->addWidget(removeAll);
    bindings_.tie(outlets_.findInFolderButton, find);
    bindings_.show(outlets_.findOutcome, outcome);
    bindings_.tie(outlets_.deleteMissingButton, remove);
    bindings_.tie(outlets_.deleteAllMissingButton, removeAll);
    return side;
}

QWidget *MissingDialog::makeChoice() {
    auto *side = new QWidget;
    QVBoxLayout *const choice = sideColumn(side);
    FileBrowserOutlets &chosen = outlets_.browser;
    auto *picture = new PictureView(chosen.selectedNewFileImage, chosen.pictureLoading);
    picture->setAccessibleName(tr("Picture of the chosen file"));
    picture->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    choice->addWidget(picture, 1);
    choice->addWidget(new InspectorText(chosen.nodeInspector));
    auto *use = plainButton(tr("Use This File"), tr("Gives the selected photo the JPEG file that "
                                                    "is chosen on the left; raw files are found "
                                                    "with Find in Folder"));
    choice->addWidget(use);
    bindings_.tie(chosen.updateFileLink, use);
    return side;
}

void MissingDialog::addWaysOut() {
    auto *anyway = new QPushButton(tr("Save Anyway"));
    anyway->setToolTip(tr("Saves all other photos"));
    auto *cancel = new QPushButton(tr("Cancel"));
    auto *save = new QPushButton(tr("Save"));
    setRole(save, Role::Default);
    auto *ok = new QPushButton(tr("OK"));
    setRole(ok, Role::Default);
    addButtons({anyway}, {cancel, save, ok});
    bindings_.tie(outlets_.saveAnyWayButton, anyway);
    bindings_.tie(outlets_.closeErrorButton, cancel);
    bindings_.tie(outlets_.saveFromErrorWindow, save);
    bindings_.tie(outlets_.errorOK, ok);
    bindings_.watch(outlets_.errorOK.visible,
                    [save, ok](bool isOk) { (isOk ? ok : save)->setDefault(true); });
}

} // namespace pinmora
