#pragma once

#include "ui/work_window.h"

#include <vector>

class QSplitter;
class QTabWidget;

namespace pinmora {

class ListsSplitter;

/// The main window: everything on one surface, tied to the controller's outlets.
class MainWindow : public WorkWindow {
    Q_OBJECT

public:
    explicit MainWindow(const WorkWindowParts &parts);

    PhotoPanel *photos() const override { return photos_; }
    void keepLayout() override;

private:
    void addMenus();
    void addToolBar();
    void addLists();
    void addTabs();
    QWidget *makePositionTab();
    QWidget *makeDetailsTab();
    void putStripLast();
    void restoreLayout();

    PhotoPanel *photos_ = nullptr;
    QSplitter *columns_ = nullptr;
    ListsSplitter *lists_ = nullptr;
    QTabWidget *tabs_ = nullptr;
    QWidget *strip_ = nullptr;
    std::vector<QWidget *> areas_; ///< that the keyboard goes between, in the order of reading
};

} // namespace pinmora
