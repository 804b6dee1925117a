#include "ui/preferences/preferences_window.h"

#include "shell/preferences.h"
#include "ui/preferences/general_preferences.h"
#include "ui/preferences/log_preferences.h"
#include "ui/preferences/map_preferences.h"
#include "ui/preferences/place_preferences.h"
#include "ui/preferences/saving_preferences.h"
#include "ui/roles.h"
#include "ui/theme.h"
#include "ui/window_frame.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace pinmora {

PreferencesWindow::PreferencesWindow(Window &window, Preferences &preferences,
                                     const std::string &makersAddress, Over over, QWidget *parent)
    : SideWindow(window, parent, std::move(over)), preferences_(preferences),
      names_(new QListWidget), stack_(new QStackedWidget), unfit_(new QLabel) {
    setWindowTitle(tr("Pinmora - Preferences"));
    resize(QSize(94 * spacing, 74 * spacing).boundedTo(screen()->availableSize() - usualFrame));
    auto *const middle = new QHBoxLayout;
    middle->setSpacing(spacing);
    middle->addWidget(names_);
    middle->addWidget(stack_, 1);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(2 * spacing, 2 * spacing, 2 * spacing, 2 * spacing);
    column->setSpacing(spacing + smallGap);
    column->addLayout(middle, 1);
    names_->setAccessibleName(tr("Pages of the preferences"));
    names_->setSpacing(1);
    setRole(names_, Role::Pages);
    addPage(new GeneralPreferences(preferences, makersAddress));
    addPage(new MapPreferences(preferences));
    addPage(new PlacePreferences(preferences));
    addPage(new LogPreferences(preferences));
    addPage(new SavingPreferences(preferences));
    column->addLayout(makeFoot()); // Tab leads to it behind the pages
    names_->setFixedWidth(names_->sizeHintForColumn(0) + 2 * spacing);
    connect(names_, &QListWidget::currentRowChanged, stack_, &QStackedWidget::setCurrentIndex);
    names_->setCurrentRow(0);
    names_->setFocus();
    bindings_.keep(window.fronted.connect([this] { turnToUnfit(); }));
    follow();
}

void PreferencesWindow::addPage(PreferencePage *page) {
    names_->addItem(page->accessibleName());
    stack_->addWidget(page);
    pages_.append(page);
}

QLayout *PreferencesWindow::makeFoot() {
    unfit_->setWordWrap(true);
    setRole(unfit_, Role::Problem);
    QSizePolicy policy = unfit_->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // the button stays where it is
    unfit_->setSizePolicy(policy);
    unfit_->hide();
    for (AddressPreference *const address : preferences_.addresses()) {
        bindings_.watch(address->field.problem, [this](const std::string &) { unfit_->hide(); });
    }
    auto *const close = new QPushButton(tr("Close"));
    connect(close, &QPushButton::clicked, this, [this] { closeAsked(); });
    auto *const row = new QHBoxLayout;
    row->setSpacing(2 * spacing);
    row->addWidget(unfit_, 1);
    row->addWidget(close, 0, Qt::AlignBottom);
    return row;
}

/// Where something is typed that cannot be stored, the window is brought to the front instead.
void PreferencesWindow::closeAsked() {
    if (preferences_.takeOver()) {
        window_.close();
    } else {
        window_.makeKeyAndOrderFront();
    }
}

void PreferencesWindow::turnToUnfit() {
    const auto page = std::find_if(pages_.begin(), pages_.end(),
                                   [](PreferencePage *one) { return !one->takeOver(); });
    if (page != pages_.end()) {
        names_->setCurrentRow(static_cast<int>(page - pages_.begin()));
        (*page)->turnToUnfit();
        unfit_->setText(tr("This is not stored yet. Correct it, or press Escape in the field to "
                           "keep what was set before."));
        unfit_->show();
    }
}

} // namespace pinmora
