#pragma once

#include "ui/bindings.h"

#include <QLabel>

namespace pinmora {

class ClockSaying;

/// How far the clock in hand is off, in words.
class ClockWords : public QLabel {
    Q_OBJECT

public:
    /// The saying must outlive it.
    explicit ClockWords(ClockSaying &saying, QWidget *parent = nullptr);

private:
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
