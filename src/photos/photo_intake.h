#pragma once

#include "outlets/drag_drop_area.h"
#include "outlets/open_panel.h"
#include "outlets/signal.h"
#include "photos/intake_report.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace pinmora {

class Context;
class Defaults;
class Photos;
class ProgressSheet;
class image;
struct StatusLine;

/// What is known of files that are dragged over a window.
struct DragInfo {
    bool offersFiles = false;
    bool fromMainWindow = false;   ///< they come from this program's own main window
    unsigned sourceOperations = 0; ///< the bits of what the source allows
};

/// The ways photos (and logs with them) come in: the open panel, drops, and files that the desktop
/// or another start of the program hands over. Each load is one step of undo, and runs to its end
/// before it returns.
class PhotoIntake {
public:
    /// All must outlive it. While `loadRunning` no load is begun; it is set during a load.
    PhotoIntake(Context &context, Photos &photos, ProgressSheet &progress, StatusLine &statusLine,
                Defaults &defaults, WorkingWindow workingWindow, bool &loadRunning);

    void menuLoadPhotos() { getFiles(); }
    /// Puts the panel up.
    void getFiles();
    /// The panel's answer.
    void setPictureFolder(OpenPanel &chosen, int returnCode);

    /// Loads one file or folder that the desktop opens with the program; always true.
    bool applicationOpenFile(const std::string &name);
    /// Several at once, in their order.
    void openFiles(const std::vector<std::string> &names);
    /// Loads files that an earlier load left out, or folders inside: as openFiles().
    void loadToo(const std::vector<std::string> &paths);

    unsigned draggingEntered(const DragInfo &drag);
    unsigned draggingUpdated(const DragInfo &drag);
    void draggingExited();
    bool prepareForDragOperation() const { return true; }
    /// Loads what was dropped, from the last path to the first; always false.
    bool performDragOperation(const std::vector<std::string> &paths);

    /// A load begins; logs that it brings are of it.
    Signal<> beginning;
    /// Sent after each load, with what became of the files and the photos that came in.
    Signal<const IntakeReport &, const std::vector<image *> &> loaded;

    OpenPanel panel;
    dragDropArea theBorder1; ///< the main window's
    dragDropArea theBorder2; ///< the wizard's

private:
    unsigned draggingEnteredOrUpdated(const DragInfo &drag) const;
    using Take = std::function<void(const std::string &path)>;
    void load(const std::vector<std::string> &paths, const Take &take);
    void takeAll(const std::vector<std::string> &paths, const Take &take);
    std::size_t photosIn(const std::vector<std::string> &paths) const;
    void showProgress(std::size_t count);

    Context &context_;
    Photos &photos_;
    ProgressSheet &progress_;
    StatusLine &statusLine_;
    Defaults &defaults_;
    WorkingWindow workingWindow_;
    bool &loadRunning_;
    std::size_t total_ = 0; ///< photos that the load under way may bring; 0: nothing is shown
    Connection photoLoaded_;
};

} // namespace pinmora
