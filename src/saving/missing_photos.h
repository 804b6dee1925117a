#pragma once

#include "outlets/controls.h"
#include "outlets/open_panel.h"
#include "outlets/window.h"
#include "persistence/change_observer.h"
#include "photos/file_browser.h"
#include "platform/end_of_turn.h"
#include "saving/save_flags.h"
#include "store/entity_array.h"
#include "store/image.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

class FolderSearch;

/// The sheet that lists the photos whose files are no longer where they were.
struct MissingPhotosOutlets {
    FileBrowserOutlets &browser; ///< where a new file is chosen, with `updateFileLink`

    Sheet pictErrorWindow{};
    Button deleteMissingButton{};    ///< removes the selected ones of the list
    Button deleteAllMissingButton{}; ///< removes all of the list
    Button findInFolderButton{};
    OpenPanel findInFolderPanel{};
    TextField findOutcome{}; ///< what a search is doing, or has found
    Button saveAnyWayButton{};
    Button saveFromErrorWindow{};
    Button closeErrorButton{};
    Button errorOK{};
};

/// What the sheet has done by those who can.
struct MissingPhotosActions {
    std::function<void()> updatePicts;      ///< the save command
    std::function<void()> selectionChanged; ///< the photos shown may be other ones
    std::function<void(const std::string &path)> dealWithPict; ///< shows a preview anew
};

/// Checks whether every photo's file is still there, and lets a person show where the missing ones
/// are now, remove them, or save without them.
class MissingPhotos : private ChangeObserver {
public:
    /// All must outlive it.
    MissingPhotos(Context &context, ArrayController<image> &pictureArray,
                  MissingPhotosOutlets &outlets, FileBrowser &browser, SaveFlags &flags,
                  WorkingWindow workingWindow, MissingPhotosActions actions);
    ~MissingPhotos() override;
    MissingPhotos(const MissingPhotos &) = delete;
    MissingPhotos &operator=(const MissingPhotos &) = delete;

    /// Marks photos whose file is gone; true when every file is there. What was marked before stays
    /// so until the photo is given another file.
    bool validateSavedDataZem();

    /// Puts the sheet up.
    void openPictErrorWin();
    /// The same with the buttons that a save begins with, or with the one for a person who only
    /// wanted to look.
    void openForSaving();
    void openForLooking();

    /// Gives the first selected photo of the list the file that is chosen in the browser.
    void updatePict();
    void deleteMissingPict();
    void deleteAllMissingPicts();
    void saveThePictsFromError();
    void saveThePictsAnyway();
    void closePictError();
    void errorOKClick();
    /// Lets a person choose a folder in which, sub-folders included, the missing photos are looked
    /// for by their names, and by their sizes where those are known.
    void findInFolder();
    /// Whether such a search is under way. It keeps the list as it is.
    bool isSearching() const;

    /// The photos without a file.
    EntityArray<image> missingImages;

private:
    void didChange(Record &record, std::string_view key) override;

    void connectButtons();
    void showSaveButtons(bool forSaving);
    void showWhatCanBeDone();
    void selectOneNear(std::size_t position);
    std::size_t selectedPosition() const;
    void removePhotos(const std::vector<image *> &photos);
    void endSheet();
    void search(const std::string &folder);
    void relinkFound(const std::vector<std::uint32_t> &serials,
                     const std::vector<std::optional<std::string>> &found);

    Context &context_;
    ArrayController<image> &pictureArray_;
    MissingPhotosOutlets &outlets_;
    FileBrowser &browser_;
    SaveFlags &flags_;
    WorkingWindow workingWindow_;
    MissingPhotosActions actions_;
    bool allThere_ = true; ///< by the last check
    EndOfTurn listChanged_;
    std::unique_ptr<FolderSearch> search_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
