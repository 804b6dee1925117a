#pragma once

namespace pinmora {

/// What the save command, the missing-photo sheet and the quit decision tell each other.
struct SaveFlags {
    bool saveAnyWay = false; ///< the next save passes over the check for missing photos, once
    bool firstQuit = true;   ///< a quit is still to be warned about
};

} // namespace pinmora
