#include "platform/translation.h"
#include "shell/inspector.h"

#include "matching/matching_outlets.h"
#include "persistence/undo_group.h"
#include "saving/renaming.h"
#include "shell/preview.h"
#include "store/library_arrays.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace pinmora {

void Inspector::textDidBeginEditing(const TextField &field) {
    if (field.tag == nameFieldTag) {
        enableChangeButtons(true);
    }
}

void Inspector::textDidChange(const TextField &field) {
    if (field.tag == nameFieldTag) {
        enableChangeButtons(!field.text.get().empty());
    }
}

void Inspector::enableChangeButtons(bool yes) {
    for (Button *button : {&renaming_.changeName, &renaming_.changeName2, &renaming_.changeName3}) {
        button->enabled.set(yes);
    }
}

void Inspector::enableNameFields(bool yes) {
    renaming_.newFileName.enabled.set(yes);
    renaming_.newFileName2.enabled.set(yes);
}

void Inspector::enableOffsetButtons(bool yes) {
    matching_.offsetButton.enabled.set(yes);
    matching_.offsetButton2.enabled.set(yes);
}

void Inspector::offerRemoval(const std::string &title, bool enabled) {
    for (Button *button : {&outlets_.removePictButton, &outlets_.removePictButton2}) {
        button->enabled.set(enabled);
        button->title.set(title);
    }
}

bool Inspector::change_enabled_text() const {
    return arrays_.pictureArray.count() > 0;
}

bool Inspector::hasTrackData() const {
    return arrays_.gpsArray.count() > 0;
}

MapView &Inspector::activeMap() const {
    return matching_.inWizard ? matching_.webView2 : matching_.webView1;
}

void Inspector::removePict() {
    {
        const UndoGroup group(context_, arrays_.pictureArray.selectedObjects().size() == 1
                                            ? translated("shell", "Remove Picture")
                                            : translated("shell", "Remove Pictures"));
        arrays_.pictureArray.remove();
    }
    notifications_.post(tableSelectionDidChange);
}

void Inspector::imageFullView() {
    const image *const photo = arrays_.pictureArray.firstSelectedObject();
    if (!photo) {
        return;
    }
    std::error_code notReached;
    if (std::filesystem::exists(photo->full_file_path().string(), notReached)) {
        if (arrays_.pictureArray.selectedObjects().size() > 1) {
            preview_.dealWithPict(photo->full_file_path().string()); // of several, none is shown
        }
        outlets_.fullView.makeKeyAndOrderFront();
    } else {
        tellMissing_();
    }
}

} // namespace pinmora
