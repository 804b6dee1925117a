#pragma once

#include "ui/theme.h"

class QObject;

namespace pinmora {

class Actions;
class Defaults;

/// The look that a person has chosen ("appearance": "light", "dark", else the desktop's).
Appearance appearanceFrom(const Defaults &defaults);

/// Lets the actions choose the look. The settings must outlive `owner`, with which the ties end.
void connectLooks(const Actions &actions, Defaults &defaults, QObject *owner);

} // namespace pinmora
