#pragma once

#include "ui/bindings.h"
#include "ui/map_pane.h"

#include <QMainWindow>

#include <functional>
#include <string>
#include <string_view>

namespace pinmora {

class Actions;
class BusyState;
class NotificationCentre;
class PhotoPanel;
class Pinmora_AppDelegate;
struct Subsystems;
struct Window;

/// What the windows that a person works in have in common. All must outlive them.
struct WorkWindowParts {
    Pinmora_AppDelegate &delegate; ///< has been set up
    Actions &actions;
    BusyState &busy;
    /// Without it the place of the map stays empty.
    MapPane::MakePage makePage;
    /// Told of each change of the selection; null where the other window's list tells it.
    NotificationCentre *toldOfSelection;
};

/// A window that a person works in: it follows its outlet, takes drops of files, remembers its
/// place, and asks to quit when it is closed.
class WorkWindow : public QMainWindow {
    Q_OBJECT

public:
    WorkWindow(const WorkWindowParts &parts, Window &window, std::string_view geometryKey);

    /// Shows it as the outlet has it, from now on. Once only, when it is complete.
    void follow();
    /// The list in which photos can be selected now; null where none is seen.
    virtual PhotoPanel *photos() const = 0;
    /// Takes its layout into the settings.
    virtual void keepLayout();
    /// The sheet that keeps this window from being used; null while none does.
    QWidget *sheet() const;

Q_SIGNALS:
    void quitAsked();
    void coloursChanged();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

    /// As it was left, or as large as that where there is room.
    void restoreGeometryOr(QSize first);

    WorkWindowParts parts_;
    Pinmora_AppDelegate &delegate_;
    Subsystems &subsystems_;
    Bindings bindings_; ///< goes before what it writes to

private:
    Window &window_;
    const std::string geometryKey_;
};

} // namespace pinmora
