#pragma once

#include "ui/action_table.h"
#include "ui/bindings.h"
#include "ui/busy_state.h"
#include "ui/map_pane.h"
#include "ui/program_actions.h"

#include <QObject>

#include <functional>
#include <memory>

namespace pinmora {

class MainWindow;
class Pinmora_AppDelegate;
class ProgramSheets;
class WizardWindow;
class WorkWindow;
struct Window;

/// The program's windows: the main window and the wizard, of which a person works in one, each
/// made when it is first shown; the actions that both have; and what comes up beside them.
class ProgramWindows : public QObject {
    Q_OBJECT

public:
    /// The controller must have been set up, and must outlive it. Without `makePage` the places of
    /// the maps stay empty.
    ProgramWindows(Pinmora_AppDelegate &delegate, MapPane::MakePage makePage);
    ~ProgramWindows() override;
    ProgramWindows(const ProgramWindows &) = delete;
    ProgramWindows &operator=(const ProgramWindows &) = delete;

    /// Ends the event loop unless the controller has something against it; nothing while a load is
    /// under way.
    void quit();
    /// Calls back once the event loop is reached and no long work is under way, which lets nothing
    /// else begin.
    void whenIdle(std::function<void()> act) { busy_.whenIdle(std::move(act)); }

    /// The one that is worked in.
    WorkWindow *windowInFront() const;
    QAction *action(ActionName name) { return actions_.actions()[name]; }

private:
    WorkWindow *widgetOf(const Window &window) const;
    template <class Made>
    void makeWhenShown(Window &window, std::unique_ptr<Made> &place);
    void complete(WorkWindow &window);

    Pinmora_AppDelegate &delegate_;
    const MapPane::MakePage makePage_;
    BusyState busy_;
    ProgramActions actions_;
    std::unique_ptr<MainWindow> main_;
    std::unique_ptr<WizardWindow> wizard_;
    std::unique_ptr<ProgramSheets> sheets_;
    bool hasStyle_ = false; ///< the style sheet is in force
    Bindings bindings_;     ///< goes before what it writes to
};

} // namespace pinmora
