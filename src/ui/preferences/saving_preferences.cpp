#include "ui/preferences/saving_preferences.h"

#include "shell/preferences.h"
#include "ui/preferences/explained.h"
#include "ui/stepper_box.h"
#include "ui/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace pinmora {

SavingPreferences::SavingPreferences(Preferences &preferences, QWidget *parent)
    : PreferencePage(tr("Photos and Saving"), parent) {
    addHeading(tr("Photos"));
    addBox(preferences.morePhotoTypes, tr("Load more types of photos"),
           tr("HEIC, PNG, WebP and further raw formats are taken for photos as well, from the "
              "next load on."));
    addHeading(tr("Writing positions with ExifTool"));
    addChoices<ToolLane>(
        preferences.toolLane, tr("Writing positions with ExifTool"),
        {{ToolLane::Process, tr("Start it for each photo"),
          tr("ExifTool is begun anew for every photo, as it is at first.")},
         {ToolLane::Shared, tr("Keep it open"),
          tr("ExifTool stays open while photos are saved, which is many times faster.")}});
    addPatience(preferences.patience);
    addSentence(tr("Both hold from the next time that you save photos."));
}

void SavingPreferences::addPatience(Stepper &patience) {
    auto *const label = new QLabel(tr("End it after a silence of"));
    auto *const box = new StepperBox(patience, bindings_);
    const QString does = tr("When ExifTool has not written for so long, it is ended, and the copy "
                            "of that photo stays without its position.");
    label->setBuddy(box);
    box->setAccessibleName(tr("Seconds of silence after which ExifTool is ended"));
    box->setAccessibleDescription(does);
    box->setFixedWidth(9 * spacing);
    auto *const row = new QHBoxLayout;
    row->setContentsMargins(0, spacing, 0, 0);
    row->setSpacing(spacing);
    row->addWidget(label);
    row->addWidget(box);
    row->addWidget(new QLabel(tr("seconds")));
    row->addStretch();
    auto *const column = new QVBoxLayout;
    column->setSpacing(smallGap);
    column->addLayout(row);
    column->addWidget(sentence(does));
    addLayout(column);
}

} // namespace pinmora
