#pragma once

#include "matching/photo_gaps.h"
#include "outlets/drag_drop_area.h"
#include "persistence/context.h"
#include "platform/notification_centre.h"
#include "shell/inspector.h"
#include "shell/photo_order.h"
#include "shell/thumbnails.h"
#include "store/image.h"
#include "store/library_arrays.h"
#include "store/library_model.h"
#include "store/offset.h"

#include <string>
#include <vector>

namespace pinmora {

/// A library in memory with what lists of photos stand on.
struct PhotoDesk {
    PhotoDesk() { clock.setContent(&context.insert<offset>()); }

    image &addPhoto(const std::string &name, const PositionTexts &position = {"", ""}) {
        auto &photo = context.insert<image>();
        photo.setImage_name(name);
        photo.setExtension("JPG");
        photo.setDate("2026:05:08 09:54:28");
        photo.setLoading(true); // nobody looks places up
        photo.updateLatAndLon(position);
        photo.setLoading(false);
        return photo;
    }
    std::vector<image *> addPhotos(int number) {
        std::vector<image *> photos;
        for (int i = 0; i < number; ++i) {
            photos.push_back(&addPhoto("P" + std::to_string(i)));
        }
        return photos;
    }

    NotificationCentre notifications;
    LibraryModel model{notifications};
    Context context{model};
    LibraryArrays arrays{context};
    ArrayController<image> &pictureArray = arrays.pictureArray;
    ObjectController<offset> clock;
    PhotoGaps gaps{context, clock};
    PhotoOrder order{pictureArray, gaps};
    Thumbnails thumbnails;
    dragDropArea dropArea;
    Button removePicture;
    int told = 0; ///< selections
    NotificationCentre::Observation telling = notifications.addObserver(
        tableSelectionDidChange, [this](const Notification &) { ++told; });
};

} // namespace pinmora
