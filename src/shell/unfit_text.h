#pragma once

#include "outlets/signal.h"

#include <string>

namespace pinmora {

class CoordinateFields;
class DetailFields;
class Editing;
class QuietBar;
struct TabView;

/// Says what it was that kept an action from being done: half-typed text that cannot be taken over,
/// perhaps on the tab that is not seen, which is shown then.
class UnfitText {
public:
    /// All must outlive it.
    UnfitText(Editing &editing, CoordinateFields &coordinates, DetailFields &details,
              TabView &mainTabs, QuietBar &quietBar);

private:
    void tell();
    std::string problemOfPosition();
    std::string problemOfDetails();

    CoordinateFields &coordinates_;
    DetailFields &details_;
    TabView &mainTabs_;
    QuietBar &quietBar_;
    Connection ended_;
};

} // namespace pinmora
