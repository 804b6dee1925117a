#include "shell/unfit_text.h"

#include "coords/coordinate_fields.h"
#include "outlets/editing.h"
#include "outlets/quiet_bar.h"
#include "outlets/tab_view.h"
#include "platform/translation.h"
#include "shell/detail_fields.h"

namespace pinmora {
namespace {

constexpr const char *subject = "unfit text";

} // namespace

UnfitText::UnfitText(Editing &editing, CoordinateFields &coordinates, DetailFields &details,
                     TabView &mainTabs, QuietBar &quietBar)
    : coordinates_(coordinates), details_(details), mainTabs_(mainTabs), quietBar_(quietBar),
      ended_(editing.ended.connect(
          [this](bool fine) { fine ? quietBar_.withdraw(subject) : tell(); })) {}

void UnfitText::tell() {
    const std::string ofPosition = problemOfPosition();
    mainTabs_.selectedIdentifier.set(ofPosition.empty() ? "2" : "1");
    quietBar_.post(
        {.subject = subject,
         .head = translated("shell", "First correct what you typed, or press Escape in it:"),
         .text = ofPosition.empty() ? problemOfDetails() : ofPosition,
         .choices = {}});
}

std::string UnfitText::problemOfPosition() {
    for (AxisFields *axis : {&coordinates_.lat, &coordinates_.lon}) {
        for (const CoordinateField *field : axis->fields()) {
            if (!field->problem.get().empty()) {
                return field->problem.get();
            }
        }
    }
    return {};
}

std::string UnfitText::problemOfDetails() {
    for (const DetailField *field : details_.fields()) {
        if (!field->problem.get().empty()) {
            return field->problem.get();
        }
    }
    return {};
}

} // namespace pinmora
