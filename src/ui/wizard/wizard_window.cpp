#include "ui/wizard/wizard_window.h"

#include "shell/pinmora_app_delegate.h"
#include "shell/subsystems.h"
#include "ui/action_table.h"
#include "ui/area_keys.h"
#include "ui/drop_highlight.h"
#include "ui/library_status.h"
#include "ui/photo_panel.h"
#include "ui/quiet_bar_widget.h"
#include "ui/roles.h"
#include "ui/theme.h"
#include "ui/time_strip_widget.h"
#include "ui/wizard/clock_page.h"
#include "ui/wizard/details_column.h"
#include "ui/wizard/end_tool.h"
#include "ui/wizard/position_tool.h"
#include "ui/wizard/step_list.h"
#include "ui/wizard/tracks_page.h"
#include "ui/wizard/welcome_page.h"
#include "ui/wizard/wizard_bar.h"
#include "ui/wizard/wizard_surface.h"
#include "ui/wizard/wizard_texts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QVBoxLayout>

#include <utility>
#include <vector>

namespace pinmora {

WizardWindow::WizardWindow(const WorkWindowParts &parts)
    : WorkWindow(parts, parts.delegate.interface.wizardWindow, "wizardGeometry") {
    setObjectName(QStringLiteral("wizardWindow"));
    setContextMenuPolicy(Qt::NoContextMenu);
    auto *const surface = new QWidget;
    auto *const column = new QVBoxLayout(surface);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto *const quiet = new QuietBarWidget(delegate_.interface.quietBar);
    column->addWidget(quiet);
    auto *const row = new QHBoxLayout;
    row->setSpacing(0);
    auto *const steps = new StepList(subsystems_.wizardOutlets, subsystems_.wizard);
    row->addWidget(steps);
    row->addWidget(makeContent(), 1);
    column->addLayout(row, 1);
    bar_ = new WizardBar(subsystems_.wizardOutlets, subsystems_.matching, subsystems_.counts);
    strip_ = new TimeStripWidget(subsystems_.timeStrip, surface);
    column->addWidget(strip_);
    column->addWidget(bar_);
    setCentralWidget(surface);
    setStatusBar(new LibraryStatus(subsystems_.counts, subsystems_.placeNames.awaited,
                                   delegate_.interface.statusLine));
    addMenus();
    addAreas(quiet, steps);
    restoreGeometryOr({1080, 680});
    bindings_.watch(subsystems_.wizardOutlets.wizardTabs.selectedIdentifier,
                    [this](const std::string &) { showPage(); });
    bindings_.watch(subsystems_.counts.counts, [this](const Counts &) { showTexts(); });
    bindings_.watch(subsystems_.matching.congrats1.visible, [this](bool) { showTexts(); });
}

void WizardWindow::addMenus() {
    parts_.actions.fill(*menuBar(), [](ActionName name) {
        return name != ActionName::ShowPosition && name != ActionName::ShowDetails &&
               name != ActionName::OnlyWithoutPosition;
    });
}

void WizardWindow::addAreas(QWidget *quietBar, QWidget *steps) {
    std::vector<QWidget *> areas{quietBar, steps};
    for (const Page &one : pages_) {
        if (one.tool) {
            areas.push_back(one.tool);
        }
    }
    for (const Page &one : pages_) {
        if (one.body != surface_) {
            areas.push_back(one.body);
        }
    }
    areas.insert(areas.end(), surface_->areas().begin(), surface_->areas().end());
    areas.insert(areas.end(), {strip_, bar_});
    new AreaKeys(*this, std::move(areas));
}

QWidget *WizardWindow::makeContent() {
    auto *const content = new QWidget;
    auto *const column = new QVBoxLayout(content);
    column->setContentsMargins(3 * spacing, 2 * spacing + smallGap, 3 * spacing, 2 * spacing);
    column->setSpacing(spacing + smallGap);
    question_ = new QLabel(content);
    setRole(question_, Role::Question);
    question_->setWordWrap(true);
    words_ = new QLabel(content);
    setRole(words_, Role::Quiet);
    words_->setWordWrap(true);
    words_->setMaximumWidth(90 * spacing); // longer lines are hard to read
    words_->setAccessibleName(tr("What this page is for"));
    column->addWidget(question_);
    auto *const row = new QHBoxLayout; // or it would stand in the middle of a wide window
    row->addWidget(words_, 1);
    row->addStretch();
    column->addLayout(row);
    addTools(*column);
    surface_ = new WizardSurface(parts_, content); // comes after them for the keyboard, too
    addBodies(*column);
    addDetailTools();
    new DropHighlight(subsystems_.photoIntake.theBorder2, tr("Drop to add photos and logs"),
                      content);
    return content;
}

void WizardWindow::addTools(QVBoxLayout &column) {
    page(WizardPage::Photos).tool = makePhotosTool();
    page(WizardPage::GpsData).tool = makeTracksTool();
    page(WizardPage::OffsetByMap).tool = makeMapTool();
    page(WizardPage::OffsetByLatLon).tool =
        new PositionTool(subsystems_.matching, subsystems_.matcher, subsystems_.clockSaying);
    page(WizardPage::OffsetByKnown).tool = makeOffsetTool();
    page(WizardPage::MatchAll).tool = new EndTool(delegate_);
    for (const Page &one : pages_) {
        if (one.tool) {
            column.addWidget(one.tool);
        }
    }
}

void WizardWindow::addBodies(QVBoxLayout &column) {
    for (Page &one : pages_) {
        one.body = surface_;
    }
    page(WizardPage::Welcome).body = new WelcomePage(subsystems_);
    page(WizardPage::GpsData).body = new TracksPage(delegate_);
    page(WizardPage::OffsetSelect).body = new ClockPage(subsystems_.wizardOutlets);
    for (QWidget *const body :
         {page(WizardPage::Welcome).body, static_cast<QWidget *>(surface_),
          page(WizardPage::GpsData).body, page(WizardPage::OffsetSelect).body}) {
        column.addWidget(body, 1);
    }
}

void WizardWindow::showPage() {
    const WizardPage now = subsystems_.wizard.page();
    const Page shown = page(now);
    setUpdatesEnabled(false); // one page goes, another comes: nothing in between is to be seen
    for (const Page &one : pages_) {
        if (one.tool) {
            one.tool->setVisible(one.tool == shown.tool);
        }
        if (one.body != shown.body) {
            one.body->hide();
        }
    }
    shown.body->show();
    strip_->setOffered(now == WizardPage::OffsetByMap || now == WizardPage::OffsetByLatLon ||
                       now == WizardPage::OffsetByKnown || now == WizardPage::MatchAll);
    detailTools_->setVisible(now == WizardPage::OffsetByMap);
    showTexts();
    setUpdatesEnabled(true);
    if (shown.body == surface_ && subsystems_.counts.counts.get().photos > 0) {
        surface_->photos()->focusList();
    } else if (now == WizardPage::OffsetSelect) {
        shown.body->setFocus();
    } else {
        bar_->focusNext();
    }
}

void WizardWindow::showTexts() {
    const PageTexts texts = textsFor(subsystems_.wizard.page(), subsystems_.counts.counts.get(),
                                     subsystems_.matching.congrats1.visible.get());
    question_->setText(texts.question);
    words_->setText(texts.words);
}

PhotoPanel *WizardWindow::photos() const {
    return surface_->isVisible() ? surface_->photos() : nullptr;
}

} // namespace pinmora
