#pragma once

#include "gps/log_reading.h"

#include <string>
#include <vector>

namespace pinmora {

class Context;
class ImportJournal;
class ProgressSheet;

/// Reads every log that the library has tracks of again, with another reading, as one step of undo.
///
/// The new tracks of a log get the numbers of the old ones in their order and take their place. A
/// log whose file is gone or cannot be read so keeps its tracks as they are; the paths of these are
/// the answer. The journal may be null.
std::vector<std::string> readLogsAgain(Context &context, LogReading reading, ImportJournal *journal,
                                       ProgressSheet &progress);

} // namespace pinmora
