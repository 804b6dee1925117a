#include "ui/wizard/tracks_page.h"

#include "shell/pinmora_app_delegate.h"
#include "shell/subsystems.h"
#include "ui/drop_ground.h"
#include "ui/roles.h"
#include "ui/track_panel.h"

#include <QFrame>
#include <QVBoxLayout>

namespace pinmora {

TracksPage::TracksPage(Pinmora_AppDelegate &delegate, QWidget *parent) : QWidget(parent) {
    Subsystems &parts = delegate.subsystems();
    auto *const frame = new QFrame(this);
    setRole(frame, Role::Framed);
    auto *const none = new DropGround(
        {.iconName = "load-gps",
         .title = tr("Drop GPS logs here"),
         .words = tr("GPX files, or NMEA logs of a receiver"),
         .buttons = {{tr("Load GPS Data…"), [&parts] { parts.gpsIntake.getGPSFile(); }}}},
        frame);
    auto *const tracks = new TrackPanel(
        delegate.library.managedObjectContext(), parts.arrays.gpsTrackArrayController,
        [&delegate] { delegate.library.removeAllGPSData(); }, frame);
    auto *const inside = new QVBoxLayout(frame);
    inside->setContentsMargins(1, 1, 1, 1);
    inside->addWidget(none);
    inside->addWidget(tracks);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(frame);
    bindings_.watch(parts.counts.counts, [none, tracks](const Counts &now) {
        const bool isFirst = now.tracks > 0 && none->isVisible();
        none->setVisible(now.tracks == 0);
        tracks->setVisible(now.tracks > 0);
        if (isFirst) {
            // Or the focus would go on to the button that removes them. The table is shown next.
            QMetaObject::invokeMethod(tracks, &TrackPanel::focusTable, Qt::QueuedConnection);
        }
    });
}

} // namespace pinmora
