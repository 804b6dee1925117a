#pragma once

#include "platform/end_of_turn.h"
#include "ui/action_table.h"
#include "ui/bindings.h"

#include <QObject>

#include <functional>

namespace pinmora {

class Pinmora_AppDelegate;
class WorkWindow;
struct Subsystems;

/// Ties the actions that both windows have to what they do. What only one window can do, it ties
/// itself.
class ProgramActions : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        std::function<WorkWindow *()> windowInFront;
        std::function<void()> quit;
    };

    /// The controller must have been set up, and must outlive it.
    ProgramActions(Pinmora_AppDelegate &delegate, Surroundings surroundings,
                   QObject *parent = nullptr);

    Actions &actions() { return actions_; }

private:
    void on(ActionName name, std::function<void()> act);
    void connectFiles();
    void connectPhotos();
    void connectClock();
    void connectViews();
    void connectPlaceNames();
    void followOutlets();
    void tieInFront(Button &ofMain, Button &ofWizard, QAction *action);
    void followCounts();
    void followSelection();
    void enableSave();
    void enableApplying();
    void tellAbout();

    Pinmora_AppDelegate &delegate_;
    Subsystems &parts_;
    const Surroundings surroundings_;
    Actions actions_;
    EndOfTurn endOfTurn_; ///< a selection may change in the middle of a change of the library
    Bindings bindings_;   ///< goes before what it writes to
};

} // namespace pinmora
