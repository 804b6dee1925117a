#include "ui/main_window.h"

#include "platform/defaults.h"
#include "shell/pinmora_app_delegate.h"
#include "shell/subsystems.h"
#include "ui/action_table.h"
#include "ui/area_keys.h"
#include "ui/clock_panel.h"
#include "ui/coordinate_panel.h"
#include "ui/details_tab.h"
#include "ui/fitting_scroll_area.h"
#include "ui/library_status.h"
#include "ui/lists_splitter.h"
#include "ui/photo_panel.h"
#include "ui/quiet_bar_widget.h"
#include "ui/stored_bytes.h"
#include "ui/theme.h"
#include "ui/time_strip_widget.h"
#include "ui/track_panel.h"

#include <QMenuBar>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include <string_view>

namespace pinmora {
namespace {

constexpr std::string_view columnsKey = "windowColumns";
constexpr std::string_view listsKey = "windowLists";

constexpr int photosRoom = 45 * spacing; ///< height for six photos or so

} // namespace

MainWindow::MainWindow(const WorkWindowParts &parts)
    : WorkWindow(parts, parts.delegate.interface.window, "windowGeometry") {
    setObjectName(QStringLiteral("mainWindow"));
    addToolBar();
    auto *surface = new QWidget;
    auto *column = new QVBoxLayout(surface);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto *const bar = new QuietBarWidget(delegate_.interface.quietBar);
    column->addWidget(bar);
    columns_ = new QSplitter(Qt::Horizontal);
    columns_->setChildrenCollapsible(false);
    column->addWidget(columns_, 1);
    setCentralWidget(surface);
    areas_ = {bar};
    addLists();
    addTabs();
    strip_ = new TimeStripWidget(subsystems_.timeStrip, surface);
    column->addWidget(strip_);
    areas_.push_back(strip_);
    new AreaKeys(*this, areas_);
    setStatusBar(new LibraryStatus(subsystems_.counts, subsystems_.placeNames.awaited,
                                   delegate_.interface.statusLine));
    addMenus();
    restoreLayout();
    photos_->focusList();
}

void MainWindow::addMenus() {
    const Actions &actions = parts_.actions;
    const std::vector<QMenu *> menus = actions.fill(*menuBar());
    QMenu *const view = menus.at(static_cast<std::size_t>(MenuName::View));
    view->addSeparator();
    view->addMenu(photos_->sortMenu());
    photos_->addAction(actions[ActionName::RemovePictures]);
    QAction *const only = actions[ActionName::OnlyWithoutPosition];
    QAction *const filter = photos_->onlyWithoutPosition();
    connect(only, &QAction::toggled, filter, &QAction::setChecked);
    connect(filter, &QAction::toggled, only, &QAction::setChecked);
}

void MainWindow::addToolBar() {
    QToolBar *bar = QMainWindow::addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("tools"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    setContextMenuPolicy(Qt::NoContextMenu);
    using enum ActionName;
    const Actions &actions = parts_.actions;
    bar->addAction(actions[AddPhotos]);
    bar->addAction(actions[LoadGpsData]);
    bar->addSeparator();
    bar->addAction(actions[ApplyToAll]);
    bar->addAction(actions[SavePhotos]);
    bar->addSeparator();
    bar->addAction(actions[Undo]);
    bar->addAction(actions[Redo]);
    auto *gap = new QWidget;
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(gap);
    bar->addAction(actions[ShowWizard]);
}

void MainWindow::addLists() {
    photos_ = new PhotoPanel({.context = delegate_.library.managedObjectContext(),
                              .pictureArray = subsystems_.arrays.pictureArray,
                              .gaps = subsystems_.gaps,
                              .order = subsystems_.photoOrder,
                              .marks = &subsystems_.saveMarks,
                              .thumbnails = subsystems_.thumbnails,
                              .notifications = parts_.toldOfSelection,
                              .dropArea = &subsystems_.photoIntake.theBorder1,
                              .removePicture = subsystems_.inspectorOutlets.removePictButton,
                              .addPhotos = [this] { subsystems_.photoIntake.getFiles(); },
                              .loadLogs = [this] { subsystems_.gpsIntake.getGPSFile(); },
                              .trySample = [this] { subsystems_.sampleOuting.load(); },
                              .fullSize = [this] { subsystems_.inspector.imageFullView(); }});
    auto *tracks = new TrackPanel(delegate_.library.managedObjectContext(),
                                  subsystems_.arrays.gpsTrackArrayController,
                                  [this] { delegate_.library.removeAllGPSData(); });
    lists_ = new ListsSplitter(photos_, photosRoom, tracks);
    columns_->addWidget(lists_);
    areas_.insert(areas_.end(), {photos_, tracks});
}

void MainWindow::addTabs() {
    tabs_ = new QTabWidget;
    areas_.push_back(tabs_->tabBar());
    tabs_->addTab(makePositionTab(), tr("Position"));
    auto *details = new QWidget;
    details->setLayout(new QVBoxLayout);
    details->layout()->setContentsMargins(0, 0, 0, 0);
    tabs_->addTab(details, tr("Details"));
    areas_.push_back(details);
    auto *frame = new QWidget;
    auto *column = new QVBoxLayout(frame);
    column->setContentsMargins(spacing + spacing / 2, spacing, spacing + spacing / 2, spacing);
    column->addWidget(tabs_);
    columns_->addWidget(frame);
    columns_->setStretchFactor(1, 1);
    TabView &shown = delegate_.interface.mainTabs;
    shown.selectedIdentifier.set("1");
    connect(tabs_, &QTabWidget::currentChanged, this, [this, details, &shown](int index) {
        if (index == 1 && details->layout()->isEmpty()) {
            details->layout()->addWidget(makeDetailsTab());
            putStripLast();
        }
        shown.selectedIdentifier.set(std::to_string(index + 1));
    });
    bindings_.watch(shown.selectedIdentifier, [this](const std::string &identifier) {
        tabs_->setCurrentIndex(identifier == "2" ? 1 : 0);
    });
}

/// What is made late is where Tab comes last; the strip stands below it.
void MainWindow::putStripLast() {
    QWidget *last = previousInFocusChain();
    while (last->focusPolicy() == Qt::NoFocus) {
        last = last->previousInFocusChain();
    }
    setTabOrder(last, strip_);
}

QWidget *MainWindow::makeDetailsTab() {
    return new DetailsTab({.details = subsystems_.details,
                           .picture = delegate_.interface.preview.theImageView1,
                           .pictureLoading = subsystems_.preview.loading,
                           .rename = [this] { subsystems_.renaming.photoNameChange(); },
                           .fullSize = [this] { subsystems_.inspector.imageFullView(); }});
}

QWidget *MainWindow::makePositionTab() {
    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(spacing, spacing, spacing, spacing);
    auto *map = new MapPane(delegate_.interface.webView1, parts_.makePage);
    column->addWidget(map, 1);
    auto *coordinates =
        new CoordinatePanel(subsystems_.coordinates, delegate_.interface.addRemoveMarker);
    auto *clock =
        new ClockPanel(subsystems_.matching, subsystems_.clockSaying, subsystems_.clockLine,
                       delegate_.editing, [this] { subsystems_.matcher.guessFromLatLon(); });
    auto *panels = new FittingScrollArea({coordinates, clock});
    // Below the coordinates it has their width, and the map needs the height.
    connect(panels, &FittingScrollArea::stackingChanged, clock, &ClockPanel::setLow);
    column->addWidget(panels);
    areas_.insert(areas_.end(), {map, coordinates, clock});
    return page;
}

void MainWindow::restoreLayout() {
    restoreGeometryOr({1280, 800});
    if (!columns_->restoreState(storedBytes(delegate_.defaults, columnsKey))) {
        columns_->setSizes({width() * 13 / 32, width() * 19 / 32});
    }
    if (lists_->restoreState(storedBytes(delegate_.defaults, listsKey))) {
        lists_->keepHeights();
    } else {
        lists_->setLowerHeight(170);
    }
}

void MainWindow::keepLayout() {
    WorkWindow::keepLayout();
    storeBytes(delegate_.defaults, columnsKey, columns_->saveState());
    storeBytes(delegate_.defaults, listsKey, lists_->saveState());
}

} // namespace pinmora
