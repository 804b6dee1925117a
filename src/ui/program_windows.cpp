#include "ui/program_windows.h"

#include "shell/pinmora_app_delegate.h"
#include "ui/main_window.h"
#include "ui/program_sheets.h"
#include "ui/theme.h"
#include "ui/wizard/wizard_window.h"

#include <QApplication>

#include <utility>

namespace pinmora {

ProgramWindows::ProgramWindows(Pinmora_AppDelegate &delegate, MapPane::MakePage makePage)
    : delegate_(delegate), makePage_(std::move(makePage)), busy_(delegate),
      actions_(delegate,
               {.windowInFront = [this] { return windowInFront(); }, .quit = [this] { quit(); }}) {
    applyColours(*qApp, appearanceFrom(delegate.defaults));
    makeWhenShown(delegate.interface.window, main_);
    makeWhenShown(delegate.interface.wizardWindow, wizard_);
    sheets_ = std::make_unique<ProgramSheets>(
        delegate, [this](const Window &window) -> QWidget * { return widgetOf(window); });
}

ProgramWindows::~ProgramWindows() = default;

template <class Made>
void ProgramWindows::makeWhenShown(Window &window, std::unique_ptr<Made> &place) {
    bindings_.watch(window.visible, [this, &place](bool visible) {
        if (visible && !place) {
            const bool isFirst = !main_ && !wizard_;
            place = std::make_unique<Made>(
                WorkWindowParts{.delegate = delegate_,
                                .actions = actions_.actions(),
                                .busy = busy_,
                                .makePage = makePage_,
                                .toldOfSelection = isFirst ? &delegate_.notifications : nullptr});
            complete(*place);
        }
    });
}

/// The first window gets the style sheet once all its widgets stand.
void ProgramWindows::complete(WorkWindow &window) {
    if (!std::exchange(hasStyle_, true)) {
        applyStyleSheet(*qApp);
    }
    connect(&window, &WorkWindow::quitAsked, this, &ProgramWindows::quit);
    connect(&window, &WorkWindow::coloursChanged, this,
            [this] { actions_.actions().refreshIcons(); });
    window.follow();
}

WorkWindow *ProgramWindows::widgetOf(const Window &window) const {
    return &window == &delegate_.interface.window         ? static_cast<WorkWindow *>(main_.get())
           : &window == &delegate_.interface.wizardWindow ? static_cast<WorkWindow *>(wizard_.get())
                                                          : nullptr;
}

WorkWindow *ProgramWindows::windowInFront() const {
    return widgetOf(delegate_.interface.workingWindow());
}

void ProgramWindows::quit() {
    if (busy_.isLoading() || delegate_.applicationShouldTerminate() != TerminateReply::Now) {
        return;
    }
    for (WorkWindow *const window :
         {static_cast<WorkWindow *>(main_.get()), static_cast<WorkWindow *>(wizard_.get())}) {
        if (window) {
            window->keepLayout();
        }
    }
    delegate_.defaults.synchronize();
    QCoreApplication::quit();
}

} // namespace pinmora
