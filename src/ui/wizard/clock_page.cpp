#include "ui/wizard/clock_page.h"

#include "shell/wizard.h"
#include "ui/theme.h"
#include "ui/wizard/choice_card.h"

#include <QVBoxLayout>

#include <tuple>

namespace pinmora {

ClockPage::ClockPage(WizardOutlets &outlets, QWidget *parent) : QScrollArea(parent) {
    auto *const content = new QWidget;
    auto *const column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing + smallGap);
    for (const auto &[button, iconName, title, words] :
         {std::tuple(&outlets.byMapButton, "apply",
                     tr("I know where one of the photos was taken: show me the map"),
                     tr("Choose a photo, put the marker where it was taken. Pinmora finds the time "
                        "the log passed there.")),
          std::tuple(&outlets.byLatLonButton, "globe", tr("I know its latitude and longitude"),
                     tr("Type the position of one photo, for example from a signpost or another "
                        "device.")),
          std::tuple(&outlets.byKnownButton, "clock",
                     tr("I know how far the camera’s clock was off"),
                     tr("Hours, minutes and seconds; for example one hour for a forgotten summer "
                        "time.")),
          std::tuple(&outlets.clockWasRightButton, "check", tr("The clock was right"),
                     tr("Go on and apply the log to all photos."))}) {
        auto *const card = new ChoiceCard(iconName, title, words, content);
        bindings_.tie(*button, card);
        column->addWidget(card);
    }
    column->addStretch();
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // the cards come into sight when they take it
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(content);
    setFocusProxy(content->findChild<ChoiceCard *>());
    // The ground is that of what it stands on.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
}

} // namespace pinmora
