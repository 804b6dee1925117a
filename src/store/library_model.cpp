#include "store/library_model.h"

#include "store/degrees.h"
#include "store/image.h"
#include "store/image_data.h"
#include "store/offset.h"
#include "store/track.h"
#include "store/track_part.h"
#include "store/track_part_best.h"

namespace pinmora {

LibraryModel::LibraryModel(NotificationCentre &notifications)
    : Model({&image::description(), &image_data::description(), &track::description(),
             &track_part::description(), &track_part_best::description(), &offset::description(),
             &degrees::description()}),
      notifications_(notifications) {}

} // namespace pinmora
