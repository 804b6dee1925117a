#include "ui/main_window.h"

#include "platform/defaults.h"
#include "shell/pinmora_app_delegate.h"
#include "shell/subsystems.h"
#include "ui/clock_panel.h"
#include "ui/coordinate_panel.h"
#include "ui/details_tab.h"
#include "ui/fitting_scroll_area.h"
#include "ui/full_view_window.h"
#include "ui/library_status.h"
#include "ui/log_window.h"
#include "ui/photo_panel.h"
#include "ui/quiet_bar_widget.h"
#include "ui/theme.h"
#include "ui/track_panel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QSplitter>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include <utility>

namespace pinmora {

MainWindow::MainWindow(Pinmora_AppDelegate &delegate, MapPane::MakePage makePage, QWidget *parent)
    : QMainWindow(parent), delegate_(delegate), parts_(delegate.subsystems()),
      makePage_(std::move(makePage)), actions_(this) {
    setObjectName(QStringLiteral("mainWindow"));
    setAcceptDrops(true);
    const Appearance look = appearanceFrom(delegate.defaults);
    applyColours(*qApp, look);
    actions_.fill(*menuBar());
    addToolBar();
    auto *surface = new QWidget;
    auto *column = new QVBoxLayout(surface);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(new QuietBarWidget(delegate.interface.quietBar));
    columns_ = new QSplitter(Qt::Horizontal);
    columns_->setChildrenCollapsible(false);
    column->addWidget(columns_, 1);
    setCentralWidget(surface);
    addLists();
    addTabs();
    setStatusBar(
        new LibraryStatus(parts_.counts, parts_.placeNames.awaited, delegate.interface.statusLine));
    connectActions();
    connectLooks(look);
    restoreLayout();
    applyStyleSheet(*qApp);
    followWindow();
    addSheets();
    photos_->focusList();
}

MainWindow::~MainWindow() {
    delete fullView_; // windows of their own
    delete log_;
}

void MainWindow::addToolBar() {
    QToolBar *bar = QMainWindow::addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("tools"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    setContextMenuPolicy(Qt::NoContextMenu);
    using enum ActionName;
    bar->addAction(actions_[AddPhotos]);
    bar->addAction(actions_[LoadGpsData]);
    bar->addSeparator();
    bar->addAction(actions_[ApplyToAll]);
    bar->addAction(actions_[SavePhotos]);
    bar->addSeparator();
    bar->addAction(actions_[Undo]);
    bar->addAction(actions_[Redo]);
    auto *gap = new QWidget;
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(gap);
    bar->addAction(actions_[Wizard]);
}

void MainWindow::addLists() {
    photos_ = new PhotoPanel({.context = delegate_.library.managedObjectContext(),
                              .pictureArray = parts_.arrays.pictureArray,
                              .gaps = parts_.gaps,
                              .order = parts_.photoOrder,
                              .marks = &parts_.saveMarks,
                              .thumbnails = parts_.thumbnails,
                              .notifications = &delegate_.notifications,
                              .dropArea = parts_.photoIntake.theBorder1,
                              .removePicture = parts_.inspectorOutlets.removePictButton,
                              .addPhotos = [this] { parts_.photoIntake.getFiles(); },
                              .loadLogs = [this] { parts_.gpsIntake.getGPSFile(); },
                              .trySample = [this] { parts_.sampleOuting.load(); },
                              .fullSize = [this] { parts_.inspector.imageFullView(); }});
    auto *tracks = new TrackPanel(delegate_.library.managedObjectContext(),
                                  parts_.arrays.gpsTrackArrayController,
                                  [this] { delegate_.library.removeAllGPSData(); });
    lists_ = new QSplitter(Qt::Vertical);
    lists_->setChildrenCollapsible(false);
    lists_->addWidget(photos_);
    lists_->addWidget(tracks);
    lists_->setStretchFactor(0, 1);
    columns_->addWidget(lists_);
}

void MainWindow::addTabs() {
    tabs_ = new QTabWidget;
    tabs_->addTab(makePositionTab(), tr("Position"));
    auto *details = new QWidget;
    details->setLayout(new QVBoxLayout);
    details->layout()->setContentsMargins(0, 0, 0, 0);
    tabs_->addTab(details, tr("Details"));
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
        }
        shown.selectedIdentifier.set(std::to_string(index + 1));
    });
    bindings_.watch(shown.selectedIdentifier, [this](const std::string &identifier) {
        tabs_->setCurrentIndex(identifier == "2" ? 1 : 0);
    });
}

QWidget *MainWindow::makeDetailsTab() {
    return new DetailsTab({.details = parts_.details,
                           .picture = delegate_.interface.preview.theImageView1,
                           .pictureLoading = parts_.preview.loading,
                           .rename = [this] { parts_.renaming.photoNameChange(); },
                           .fullSize = [this] { parts_.inspector.imageFullView(); }});
}

QWidget *MainWindow::makePositionTab() {
    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(spacing, spacing, spacing, spacing);
    column->addWidget(new MapPane(delegate_.interface.webView1, makePage_), 1);
    column->addWidget(new FittingScrollArea(
        {new CoordinatePanel(parts_.coordinates, delegate_.interface.addRemoveMarker),
         new ClockPanel(parts_.matching, delegate_.editing,
                        [this] { parts_.matcher.guessFromLatLon(); })}));
    return page;
}

void MainWindow::followWindow() {
    Window &window = delegate_.interface.window;
    bindings_.watch(window.title, [this](const std::string &title) {
        setWindowTitle(QString::fromStdString(title));
    });
    bindings_.watch(window.visible, [this](bool visible) { setVisible(visible); });
    bindings_.keep(window.fronted.connect([this] {
        setWindowState(windowState() & ~Qt::WindowMinimized);
        show();
        raise();
        activateWindow();
    }));
}

bool MainWindow::isLoading() const {
    return delegate_.interface.loadRunning || delegate_.interface.progress.progressWindow.isUp();
}

bool MainWindow::isBusy() const {
    return isLoading() || parts_.saveOutlets.saveWindow.isUp();
}

void MainWindow::whenIdle(std::function<void()> act) {
    constexpr int lookAgain = 100; // ms
    QTimer::singleShot(isBusy() ? lookAgain : 0, this, [this, act = std::move(act)]() mutable {
        isBusy() ? whenIdle(std::move(act)) : act();
    });
}

void MainWindow::quit() {
    if (!isLoading() && delegate_.applicationShouldTerminate() == TerminateReply::Now) {
        keepLayout();
        QCoreApplication::quit();
    }
}

/// Whether the window may go is the controller's word.
void MainWindow::closeEvent(QCloseEvent *event) {
    event->ignore();
    quit();
}

} // namespace pinmora
