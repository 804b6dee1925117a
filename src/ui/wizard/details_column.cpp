#include "ui/wizard/details_column.h"

#include "shell/wizard_details.h"
#include "ui/elided_label.h"
#include "ui/picture_view.h"
#include "ui/roles.h"
#include "ui/scrolled_focus.h"
#include "ui/theme.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

namespace pinmora {
namespace {

constexpr int columnWidth = 210;
constexpr int pictureHeight = 132;
constexpr int leastPictureHeight = 64; ///< gives way to what stands below

} // namespace

DetailsColumn::DetailsColumn(const Parts &parts, QWidget *parent)
    : QScrollArea(parent), choose_(new QLabel(tr("Choose a photo"))) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFixedWidth(columnWidth);
    setAccessibleName(tr("The selected photo"));
    focusWhileScrollable(*this);
    auto *const content = new QWidget;
    column_ = new QVBoxLayout(content);
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(spacing);
    column_->addWidget(addPicture(parts));
    setRole(choose_, Role::Quiet);
    column_->addWidget(choose_);
    auto *const name = new ElidedLabel(content); // wrapped, it would keep the picture large
    name->setObjectName(QStringLiteral("selectedPhoto"));
    setRole(name, Role::Strong);
    bindings_.follow(parts.details.pictureData2, name);
    bindings_.watch(parts.details.pictureData2.text, [name](const std::string &text) {
        name->setWholeText(QString::fromStdString(text));
    });
    column_->addWidget(name);
    auto *const grid = new QGridLayout;
    grid->setHorizontalSpacing(spacing);
    grid->setVerticalSpacing(0);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    column_->addLayout(grid);
    setWidget(content);
    WizardDetails &details = parts.details;
    addPair(*grid, 0, 0, details.timeLabel2, details.time2, tr("Taken"));
    addPair(*grid, 2, 0, details.tiemWithOffsetLabel2, details.tiemWithOffset2, tr("Corrected"));
    addPair(*grid, 4, 0, details.latitudeLabel2, details.latitude2, tr("Latitude"));
    addPair(*grid, 4, 1, details.longitudeLabel2, details.longitude2, tr("Longitude"));
    column_->addStretch();
    bindings_.watch(details.pictureData2.text,
                    [this](const std::string &chosen) { choose_->setVisible(chosen.empty()); });
    bindings_.follow(parts.picture, this);
    // The ground is that of what it stands on.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
}

QWidget *DetailsColumn::addPicture(const Parts &parts) {
    auto *const frame = new QFrame;
    setRole(frame, Role::Framed);
    frame->setMinimumHeight(leastPictureHeight);
    frame->setMaximumHeight(pictureHeight);
    auto *const inside = new QVBoxLayout(frame);
    inside->setContentsMargins(1, 1, 1, 1);
    auto *const picture = new PictureView(parts.picture, parts.pictureLoading, frame);
    picture->setAccessibleName(tr("Picture of the selected photo"));
    picture->setToolTip(tr("Double-click to see it at full size"));
    connect(picture, &PictureView::doubleClicked, this, parts.fullSize);
    inside->addWidget(picture);
    return frame;
}

/// A caption above its value; without a value there is nothing to be captioned.
void DetailsColumn::addPair(QGridLayout &grid, int row, int column, Control &caption,
                            TextField &value, const QString &captionText) {
    auto *const above = new QLabel(captionText, widget());
    setRole(above, Role::Quiet);
    auto *const below = new QLabel(widget());
    below->setTextFormat(Qt::PlainText);
    below->setTextInteractionFlags(Qt::TextSelectableByMouse);
    below->setContentsMargins(0, 0, 0, smallGap);
    below->setAccessibleName(captionText);
    const int span = row == 4 ? 1 : 2;
    grid.addWidget(above, row, column, 1, span);
    grid.addWidget(below, row + 1, column, 1, span);
    const auto show = [&caption, &value, above, below] {
        const QString text = QString::fromStdString(value.text.get()).trimmed();
        below->setText(text);
        below->setVisible(value.visible.get() && !text.isEmpty());
        above->setVisible(caption.visible.get() && !text.isEmpty());
    };
    bindings_.watch(value.text, [show](const std::string &) { show(); });
    bindings_.watch(value.visible, [show](bool) { show(); });
    bindings_.watch(caption.visible, [show](bool) { show(); });
}

void DetailsColumn::addTool(QWidget *tool) {
    column_->insertWidget(column_->count() - 1, tool);
}

} // namespace pinmora
