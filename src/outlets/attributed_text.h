#pragma once

#include "outlets/controls.h"

#include <string>
#include <vector>

namespace pinmora {

/// Text of which parts are set in bold type.
struct TextRun {
    std::string text;
    bool bold = false;

    friend bool operator==(const TextRun &, const TextRun &) = default;
};
using AttributedText = std::vector<TextRun>;

/// A text of several runs that is only shown.
struct AttributedField : Control {
    Observable<AttributedText> text;
};

} // namespace pinmora
