#include "shell/offset_in_force.h"

#include "persistence/context.h"
#include "store/offset.h"

namespace pinmora {

OffsetInForce::OffsetInForce(Context &context, ObjectController<offset> &offsetObj)
    : context_(context), offsetObj_(offsetObj), endOfTurn_([this] { find(); }),
      lost_(offsetObj.onChange([this](const offset *now) {
          if (!now) {
              endOfTurn_.ask(); // its successor may still be on its way
          }
      })) {}

void OffsetInForce::find() {
    const std::vector<offset *> all = context_.fetch<offset>();
    if (!offsetObj_.content() && !all.empty()) {
        offsetObj_.setContent(all.front());
    }
}

} // namespace pinmora
