#include "saving/renaming.h"

#include "persistence/context.h"
#include "persistence/undo_group.h"
#include "platform/translation.h"
#include "saving/saving.h"
#include "store/image.h"

#include <utility>

namespace pinmora {

Renaming::Renaming(Context &context, const Saving &saving, RenamingOutlets &outlets,
                   WorkingWindow workingWindow, std::function<void()> sortByDate)
    : context_(context), saving_(saving), outlets_(outlets),
      workingWindow_(std::move(workingWindow)), sortByDate_(std::move(sortByDate)) {
    for (Button *button : {&outlets.changeName, &outlets.changeName2}) {
        connections_.push_back(button->pressed.connect([this] { changeSelectedNames(); }));
    }
    connections_.push_back(outlets.changeName3.pressed.connect([this] { changeAllNames(); }));
}

void Renaming::photoNameChange() {
    outlets_.nameChange.begin(workingWindow_());
}

void Renaming::cancelNameChange() {
    outlets_.nameChange.end();
}

void Renaming::changeSelectedNames() {
    outlets_.nameChange.end();
    updateThesePict(std::vector(outlets_.pictureArray.selectedObjects()));
}

void Renaming::changeAllNames() {
    outlets_.nameChange.end();
    sortByDate_();
    updateThesePict(std::vector(outlets_.pictureArray.arrangedObjects()));
}

void Renaming::revertPhotoNames() {
    outlets_.nameChange.end();
    const UndoGroup group(context_, translated("saving", "Use Original Names"));
    for (image *photo : std::vector(outlets_.pictureArray.arrangedObjects())) {
        photo->setImage_name(photo->original_name());
    }
}

/// Text that is unfit elsewhere is no reason not to rename.
void Renaming::updateThesePict(const std::vector<image *> &photos) {
    context_.commitEditing();
    const UndoGroup group(context_, translated("saving", "Rename Photos"));
    saving_.updateThesePict(photos, std::vector(outlets_.pictureArray.arrangedObjects()),
                            baseName());
}

std::string Renaming::baseName() const {
    if (outlets_.inWizard) {
        return outlets_.newFileName3.text.get();
    }
    return outlets_.mainTabs.selectedIdentifier.get() == "1" ? outlets_.newFileName.text.get()
                                                             : outlets_.newFileName2.text.get();
}

} // namespace pinmora
