#pragma once

#include <QFrame>

#include <functional>

namespace pinmora {

/// What the place of the photos shows while there is none: what to do.
class EmptyPhotos : public QFrame {
    Q_OBJECT

public:
    EmptyPhotos(std::function<void()> addPhotos, std::function<void()> loadLogs,
                std::function<void()> trySample, QWidget *parent = nullptr);
};

} // namespace pinmora
