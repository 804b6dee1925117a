#pragma once

#include "ui/bindings.h"

#include <QScrollArea>

namespace pinmora {

struct WizardOutlets;

/// The four ways to the camera's clock, a card each.
class ClockPage : public QScrollArea {
    Q_OBJECT

public:
    /// Must outlive it.
    explicit ClockPage(WizardOutlets &outlets, QWidget *parent = nullptr);

private:
    Bindings bindings_; ///< goes before what it writes to
};

} // namespace pinmora
