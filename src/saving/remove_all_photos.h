#pragma once

#include "outlets/controls.h"
#include "outlets/window.h"

#include <functional>
#include <vector>

namespace pinmora {

class Library;

/// The command that removes all photos from the library, once a person has said so twice.
class RemoveAllPhotos {
public:
    /// The library must outlive it. `selectionChanged` is called when the photos have gone.
    RemoveAllPhotos(Library &library, WorkingWindow workingWindow,
                    std::function<void()> selectionChanged);
    RemoveAllPhotos(const RemoveAllPhotos &) = delete;
    RemoveAllPhotos &operator=(const RemoveAllPhotos &) = delete;
    ~RemoveAllPhotos() = default;

    /// Asks; nothing happens where there are no photos.
    void openRemoveAll();
    void removeAll();
    void cancelRemoveAll();

    Sheet removeAllWindow;
    TextField question;
    Button removeAllButton;
    Button cancelButton;

private:
    Library &library_;
    WorkingWindow workingWindow_;
    std::function<void()> selectionChanged_;
    std::vector<Connection> connections_;
};

} // namespace pinmora
