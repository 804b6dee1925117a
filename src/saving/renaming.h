#pragma once

#include "outlets/array_controller.h"
#include "outlets/controls.h"
#include "outlets/signal.h"
#include "outlets/tab_view.h"
#include "outlets/window.h"

#include <functional>
#include <string>
#include <vector>

namespace pinmora {

class Context;
class Saving;
class image;

/// The sheet in which photos get new names, and the fields and buttons that go with it.
struct RenamingOutlets {
    ArrayController<image> &pictureArray;
    TextField &newFileName; ///< where the name is typed in the main window's first tab
    TextField &newFileName2;
    TabView &mainTabs;
    const bool &inWizard;

    TextField newFileName3{}; ///< likewise in the wizard
    Sheet nameChange{};
    Button changeName{}; ///< rename the selected photos
    Button changeName2{};
    Button changeName3{}; ///< rename all
};

/// Gives photos new names before they are saved. Each action is one step of undo.
class Renaming {
public:
    Renaming(const Renaming &) = delete;
    Renaming &operator=(const Renaming &) = delete;
    ~Renaming() = default;

    /// All must outlive it. `sortByDate` arranges the photos by their time, earliest first.
    Renaming(Context &context, const Saving &saving, RenamingOutlets &outlets,
             WorkingWindow workingWindow, std::function<void()> sortByDate);

    /// Puts the sheet up.
    void photoNameChange();
    /// Takes it down again, nothing done.
    void cancelNameChange();
    void changeSelectedNames();
    /// Arranges the photos by time, and renames all in that order.
    void changeAllNames();
    void revertPhotoNames();
    /// Names photos "BASE_1", "BASE_2", ... with the name that was typed.
    void updateThesePict(const std::vector<image *> &photos);

private:
    std::string baseName() const;

    Context &context_;
    const Saving &saving_;
    RenamingOutlets &outlets_;
    WorkingWindow workingWindow_;
    std::function<void()> sortByDate_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
