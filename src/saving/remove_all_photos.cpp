#include "saving/remove_all_photos.h"

#include "platform/translation.h"
#include "store/library.h"

#include <utility>

namespace pinmora {

RemoveAllPhotos::RemoveAllPhotos(Library &library, WorkingWindow workingWindow,
                                 std::function<void()> selectionChanged)
    : library_(library), workingWindow_(std::move(workingWindow)),
      selectionChanged_(std::move(selectionChanged)) {
    connections_.push_back(removeAllButton.pressed.connect([this] { removeAll(); }));
    connections_.push_back(cancelButton.pressed.connect([this] { cancelRemoveAll(); }));
}

void RemoveAllPhotos::openRemoveAll() {
    const std::size_t photos = library_.managedObjectContext().count<image>();
    if (photos > 0) {
        question.text.set(translated("saving", "Remove all %n photos from the library?",
                                     "Remove the photo from the library?", photos));
        removeAllWindow.begin(workingWindow_());
    }
}

void RemoveAllPhotos::removeAll() {
    removeAllWindow.end();
    library_.emptyTempStore();
    selectionChanged_();
}

void RemoveAllPhotos::cancelRemoveAll() {
    removeAllWindow.end();
}

} // namespace pinmora
