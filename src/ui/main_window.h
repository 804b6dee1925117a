#pragma once

#include "ui/action_table.h"
#include "ui/bindings.h"
#include "ui/map_pane.h"
#include "ui/sheet_dialog.h"

#include <QMainWindow>

#include <functional>

class QActionGroup;
class QSplitter;
class QTabWidget;

namespace pinmora {

class Defaults;
class FullViewWindow;
class LogWindow;
class PhotoPanel;
class Pinmora_AppDelegate;
class TrackPanel;
struct DragInfo;
struct Subsystems;
enum class Appearance;

/// The look that a person has chosen ("appearance": "light", "dark", else the desktop's).
Appearance appearanceFrom(const Defaults &defaults);

/// The main window: everything on one surface, tied to the controller's outlets.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// The controller must have been set up, and must outlive the window. Without `makePage` the
    /// place of the map stays empty.
    MainWindow(Pinmora_AppDelegate &delegate, MapPane::MakePage makePage,
               QWidget *parent = nullptr);
    ~MainWindow() override;
    MainWindow(const MainWindow &) = delete;
    MainWindow &operator=(const MainWindow &) = delete;

    /// Ends the event loop unless the controller has something against it; nothing while a load is
    /// under way.
    void quit();

    /// Calls back once the event loop is reached and no long work is under way, which lets nothing
    /// else begin.
    void whenIdle(std::function<void()> act);

    QAction *action(ActionName name) const { return actions_[name]; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void addToolBar();
    void addLists();
    void addTabs();
    QWidget *makePositionTab();
    QWidget *makeDetailsTab();
    void addSheets();
    void addSavingSheets(const WidgetOf &widgetOf);
    void addWindows();
    void whenUp(Sheet &sheet, std::function<SheetDialog *()> make);
    void connectActions();
    void enableSave();
    void connectPlaceNames();
    void connectLooks(Appearance inForce);
    void chooseLook(Appearance look);
    void followWindow();
    void restoreLayout();
    void keepLayout();
    bool isLoading() const;
    bool isBusy() const;

    Pinmora_AppDelegate &delegate_;
    Subsystems &parts_;
    const MapPane::MakePage makePage_;
    Actions actions_;
    PhotoPanel *photos_ = nullptr;
    QSplitter *columns_ = nullptr;
    QSplitter *lists_ = nullptr;
    QTabWidget *tabs_ = nullptr;
    FullViewWindow *fullView_ = nullptr;
    LogWindow *log_ = nullptr;
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
