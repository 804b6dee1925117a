#pragma once

#include "outlets/signal.h"

#include <functional>
#include <utility>

namespace pinmora {

/// Knows who may hold half-typed text, so that it can be taken over before it is needed.
class Editing {
public:
    /// Takes over what has been typed, if anything; false when it is unfit and stays as it is.
    using EndEditing = std::function<bool()>;

    [[nodiscard]] Connection addEditor(EndEditing endEditing) {
        return asked_.connect([end = std::move(endEditing)](bool &fine) { fine = end() && fine; });
    }

    /// Asks all editors, in the order in which they came; false when one has refused.
    bool commitEditing() const {
        const bool fine = takeOver();
        ended.emit(fine);
        return fine;
    }
    /// The same for what is done in any case: nobody is told, and what is unfit stays half typed.
    bool takeOver() const {
        bool fine = true;
        asked_.emit(fine);
        return fine;
    }

    /// All have been asked; false: some of what was typed is unfit.
    Signal<bool> ended;

private:
    Signal<bool &> asked_;
};

} // namespace pinmora
