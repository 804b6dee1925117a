#pragma once

#include "ui/bindings.h"

#include <QLabel>

namespace pinmora {

struct MatchingOutlets;

/// How far the camera's clock is set right now.
class ClockWords : public QLabel {
    Q_OBJECT

public:
    /// The outlets must outlive it.
    explicit ClockWords(MatchingOutlets &outlets, QWidget *parent = nullptr);

private:
    void showOffset();

    MatchingOutlets &outlets_;
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
