#pragma once

#include "ui/drop_ground.h"

#include <functional>

namespace pinmora {

/// What the place of the photos shows while there is none: what to do.
class EmptyPhotos : public DropGround {
    Q_OBJECT

public:
    /// What is null is not offered.
    EmptyPhotos(const std::function<void()> &addPhotos, const std::function<void()> &loadLogs,
                const std::function<void()> &trySample, QWidget *parent = nullptr);
};

} // namespace pinmora
