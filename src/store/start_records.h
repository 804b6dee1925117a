#pragma once

namespace pinmora {

class Context;
class degrees;
class image_data;
class offset;

/// The records that a run of the program stands on.
struct StartRecords {
    image_data &currentPicture;
    degrees &shownPosition;
    offset &clockOffset;
};

/// Makes them: the first two anew at every start, as they live in memory only; the clock offset
/// where the library has none. No person's doing, so nothing that could be taken back.
StartRecords makeStartRecords(Context &context);

} // namespace pinmora
