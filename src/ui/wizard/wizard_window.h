#pragma once

#include "shell/wizard_pages.h"
#include "ui/work_window.h"

#include <array>

class QLabel;
class QVBoxLayout;

namespace pinmora {

class TimeStripWidget;
class WizardBar;
class WizardSurface;

/// The wizard: the same work as in the main window, one question a page.
class WizardWindow : public WorkWindow {
    Q_OBJECT

public:
    explicit WizardWindow(const WorkWindowParts &parts);

    PhotoPanel *photos() const override;

private:
    /// What stands below a page's words: its tool, and its body.
    struct Page {
        QWidget *tool = nullptr; ///< null: none
        QWidget *body = nullptr; ///< several pages may share one
    };

    void addMenus();
    void addAreas(QWidget *quietBar, QWidget *steps);
    QWidget *makeContent();
    void addBodies(QVBoxLayout &column);
    void addTools(QVBoxLayout &column);
    void addDetailTools();
    QWidget *makePhotosTool();
    QWidget *makeTracksTool();
    QWidget *makeMapTool();
    QWidget *makeOffsetTool();
    Page &page(WizardPage which) { return pages_.at(static_cast<std::size_t>(which)); }
    void showPage();
    void showTexts();

    std::array<Page, wizardPageCount> pages_;
    QLabel *question_ = nullptr;
    QLabel *words_ = nullptr;
    WizardSurface *surface_ = nullptr;
    WizardBar *bar_ = nullptr;
    TimeStripWidget *strip_ = nullptr;
    QWidget *detailTools_ = nullptr;
};

} // namespace pinmora
