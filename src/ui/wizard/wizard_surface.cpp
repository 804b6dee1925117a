#include "ui/wizard/wizard_surface.h"

#include "shell/pinmora_app_delegate.h"
#include "shell/subsystems.h"
#include "ui/action_table.h"
#include "ui/photo_panel.h"
#include "ui/roles.h"
#include "ui/theme.h"
#include "ui/wizard/details_column.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace pinmora {
namespace {

constexpr int listWidth = 236;      ///< beside a map
constexpr int leastMapHeight = 144; ///< what a small screen leaves below the tools of a page

QFrame *inFrame(QWidget *content, QWidget *parent) {
    auto *const frame = new QFrame(parent);
    setRole(frame, Role::Framed);
    auto *const inside = new QVBoxLayout(frame);
    inside->setContentsMargins(1, 1, 1, 1);
    inside->addWidget(content);
    return frame;
}

} // namespace

WizardSurface::WizardSurface(const WorkWindowParts &parts, QWidget *parent)
    : QWidget(parent), row_(new QHBoxLayout(this)) {
    row_->setContentsMargins(0, 0, 0, 0);
    row_->setSpacing(spacing + smallGap);
    addPhotos(parts);
    addMap(parts);
    addDetails(parts);
    areas_.push_back(details_);
}

void WizardSurface::addPhotos(const WorkWindowParts &parts) {
    Pinmora_AppDelegate &delegate = parts.delegate;
    Subsystems &subsystems = delegate.subsystems();
    photos_ = new PhotoPanel({.context = delegate.library.managedObjectContext(),
                              .pictureArray = subsystems.arrays.pictureArray,
                              .gaps = subsystems.gaps,
                              .order = subsystems.photoOrder,
                              .marks = &subsystems.saveMarks,
                              .thumbnails = subsystems.thumbnails,
                              .notifications = parts.toldOfSelection,
                              .removePicture = subsystems.inspectorOutlets.removePictButton2,
                              .addPhotos = [&subsystems] { subsystems.photoIntake.getFiles(); },
                              .fullSize = [&subsystems] { subsystems.inspector.imageFullView(); },
                              .mayBeNarrow = true});
    photos_->addAction(parts.actions[ActionName::RemovePictures]);
    areas_.push_back(photos_);
    QFrame *const frame = inFrame(photos_, this);
    row_->addWidget(frame);
    bindings_.watch(delegate.interface.webView2.visible, [frame](bool isBesideMap) {
        frame->setMaximumWidth(isBesideMap ? listWidth : QWIDGETSIZE_MAX);
    });
}

void WizardSurface::addMap(const WorkWindowParts &parts) {
    MapView &view = parts.delegate.interface.webView2;
    auto *const map = new MapPane(view, parts.makePage);
    map->setMinimumHeight(leastMapHeight);
    areas_.push_back(map);
    QFrame *const frame = inFrame(map, this);
    row_->addWidget(frame, 1);
    bindings_.watch(view.visible, [frame](bool visible) { frame->setVisible(visible); });
}

void WizardSurface::addDetails(const WorkWindowParts &parts) {
    Subsystems &subsystems = parts.delegate.subsystems();
    details_ =
        new DetailsColumn({.details = subsystems.wizardDetails,
                           .picture = parts.delegate.interface.preview.theImageView2,
                           .pictureLoading = subsystems.preview.loading,
                           .fullSize = [&subsystems] { subsystems.inspector.imageFullView(); }},
                          this);
    row_->addWidget(details_);
}

} // namespace pinmora
