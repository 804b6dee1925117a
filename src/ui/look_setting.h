#pragma once

#include "shell/appearance.h"
#include "shell/preference.h"

namespace pinmora {

class Actions;
class Bindings;

/// Lets the actions choose the look, and has the program look as chosen. The ties end with
/// `bindings`.
void connectLooks(const Actions &actions, Preference<Appearance> &appearance, Bindings &bindings);

} // namespace pinmora
