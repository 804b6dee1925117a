#pragma once

#include "ui/bindings.h"
#include "ui/sheet_dialog.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace pinmora {

class FullViewWindow;
class LogWindow;
class ManualWindow;
class Pinmora_AppDelegate;
class PreferencesWindow;
class UpdateWindow;
struct Subsystems;

/// The sheets, which hang from whichever window a person works in, and the windows beside it.
/// What is not seen at first is made when it is first needed.
class ProgramSheets {
public:
    /// The controller must have been set up, and must outlive it.
    ProgramSheets(Pinmora_AppDelegate &delegate, WidgetOf widgetOf);
    ~ProgramSheets();
    ProgramSheets(const ProgramSheets &) = delete;
    ProgramSheets &operator=(const ProgramSheets &) = delete;

private:
    void whenUp(Sheet &sheet, std::function<SheetDialog *()> make);
    void addSheets();
    void addSavingSheets();
    void addWindows();

    Pinmora_AppDelegate &delegate_;
    Subsystems &parts_;
    const WidgetOf widgetOf_;
    QWidget owner_; ///< never seen: has the sheets until they are first up
    std::unique_ptr<FullViewWindow> fullView_;
    std::unique_ptr<LogWindow> log_;
    std::unique_ptr<ManualWindow> manual_;
    std::unique_ptr<PreferencesWindow> preferences_;
    std::unique_ptr<UpdateWindow> update_;
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
