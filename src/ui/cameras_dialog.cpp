#include "ui/cameras_dialog.h"

#include "shell/cameras.h"
#include "ui/camera_row.h"
#include "ui/scrolled_focus.h"
#include "ui/theme.h"

#include <QFrame>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace pinmora {
namespace {

constexpr int mostHeight = 50 * spacing; ///< more cameras are scrolled through

} // namespace

CamerasDialog::CamerasDialog(Cameras &cameras, Editing &editing, WidgetOf widgetOf, QWidget *owner)
    : SheetDialog(
          cameras.sheet, std::move(widgetOf), [&cameras] { cameras.closeButton.press(); }, owner),
      cameras_(cameras), editing_(editing), area_(new QScrollArea), list_(new QVBoxLayout) {
    setMinimumWidth(68 * spacing);
    addText(Role::Title, tr("Cameras"));
    addText(Role::Quiet, tr("All go by one clock unless a camera has its own, which is remembered "
                            "for the next outing."));
    auto *content = new QFrame;
    setRole(content, Role::Content);
    content->setLayout(list_);
    list_->setContentsMargins(0, 0, 0, 0);
    list_->setSpacing(0);
    area_->setWidget(content);
    area_->setAccessibleName(tr("Cameras"));
    focusWhileScrollable(*area_);
    area_->setWidgetResizable(true);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setRole(area_, Role::Framed);
    column()->addWidget(area_);
    auto *close = new QPushButton(tr("Close"));
    addButtons({}, {close});
    close->setDefault(true);
    bindings_.tie(cameras.closeButton, close);
    bindings_.watch(cameras.cameras,
                    [this](const std::vector<CameraInUse> &now) { showCameras(now); });
}

void CamerasDialog::showCameras(const std::vector<CameraInUse> &cameras) {
    const bool areSame = std::equal(
        rows_.begin(), rows_.end(), cameras.begin(), cameras.end(),
        [](const CameraRow *row, const CameraInUse &one) { return row->camera() == one.camera; });
    if (!areSame) {
        while (QLayoutItem *const item = list_->takeAt(0)) {
            delete item->widget();
            delete item;
        }
        rows_.clear();
        for (const CameraInUse &one : cameras) {
            if (!rows_.empty()) {
                auto *line = new QFrame;
                line->setFrameShape(QFrame::HLine);
                list_->addWidget(line);
            }
            rows_.push_back(new CameraRow(cameras_, one, editing_));
            list_->addWidget(rows_.back());
        }
    }
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        rows_[i]->showCamera(cameras[i]);
    }
    list_->activate();
    const QSize wanted = list_->totalSizeHint();
    area_->setMinimumSize(wanted.width() + 2, std::min(wanted.height() + 2, mostHeight));
    if (isVisible()) {
        fit();
    }
}

} // namespace pinmora
