#pragma once

#include "gps/gpx_elements.h"
#include "outlets/error_sheet.h"
#include "outlets/progress_sheet.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace pinmora {

/// Reads GPX documents, given in blocks of any size, into tracks and points.
///
/// One document: begin(), feed() until the bytes are used up or it says false, finish(). At the end
/// of a document the progress sheet is closed. A malformed one closes it where the fault is, shows
/// the error sheet and keeps the tracks and points made so far.
class GpxReader {
public:
    GpxReader(Context &context, ProgressSheet &progress, ErrorSheet &errors);

    /// `path` is the full path of the document; empty for one that is no file. `readEntity` gives
    /// what the document may bring in from outside.
    void begin(const std::filesystem::path &path, LogReading reading, EntityReader readEntity = {});
    /// False when the document is malformed: nothing more is read.
    bool feed(std::string_view bytes);
    LogReport finish();

    /// What is kept from one document to the next.
    GpxElements &elements() { return elements_; }
    const GpxElements &elements() const { return elements_; }

private:
    bool start(bool isLast);
    bool parse(std::string_view bytes, bool isLast);

    ProgressSheet &progress_;
    ErrorSheet &errors_;
    GpxElements elements_;
    LogReport report_;
    std::optional<XmlParser> gpsParser_;
    std::string head_; ///< bytes held back until it is known where the document starts
    bool started_ = false;
};

} // namespace pinmora
