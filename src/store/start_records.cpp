#include "store/start_records.h"

#include "persistence/undo_group.h"
#include "store/degrees.h"
#include "store/image_data.h"
#include "store/offset.h"

namespace pinmora {

StartRecords makeStartRecords(Context &context) {
    const UnregisteredChanges scope(context);
    auto &currentPicture = context.insert<image_data>();
    auto &shownPosition = context.insert<degrees>();
    const bool hasOffset = context.count<offset>() > 0;
    offset &clockOffset =
        hasOffset ? **context.records<offset>().begin() : context.insert<offset>();
    return {currentPicture, shownPosition, clockOffset};
}

} // namespace pinmora
