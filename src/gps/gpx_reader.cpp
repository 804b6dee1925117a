#include "gps/gpx_reader.h"

#include "gps/log_head.h"
#include "platform/translation.h"

namespace pinmora {

GpxReader::GpxReader(Context &context, ProgressSheet &progress, ErrorSheet &errors)
    : progress_(progress), errors_(errors), elements_(context) {}

void GpxReader::begin(const std::filesystem::path &path, LogReading reading,
                      EntityReader readEntity) {
    report_ = {};
    report_.path = path;
    report_.reading = reading;
    gpsParser_.emplace(elements_, std::move(readEntity));
    elements_.beginDocument(report_, *gpsParser_);
    head_.clear();
    started_ = policyOf(reading).xmlNeedsDeclaration;
}

bool GpxReader::feed(std::string_view bytes) {
    if (started_) {
        return parse(bytes, false);
    }
    head_ += bytes;
    return start(false);
}

LogReport GpxReader::finish() {
    if ((started_ || start(true)) && parse({}, true)) {
        progress_.closeProgress();
    }
    gpsParser_.reset();
    return report_;
}

/// Blanks before a declaration are a fault to the parser, so they are left out of what it gets.
bool GpxReader::start(bool isLast) {
    std::optional<DocumentStart> found = documentStart(head_);
    if (!found && (isLast || head_.size() > logHeadSize)) {
        found.emplace();
    }
    if (!found) {
        return true;
    }
    started_ = true;
    gpsParser_->skipLines(found->lines);
    if (found->encoding) {
        gpsParser_->setEncoding(found->encoding); // editors leave encoding="UTF-8" in such files
    }
    return parse(std::string_view(head_).substr(found->begin), false);
}

bool GpxReader::parse(std::string_view bytes, bool isLast) {
    if (report_.failed()) {
        return false;
    }
    if (gpsParser_->parse(bytes, isLast)) {
        return true;
    }
    report_.error = LogError::MalformedGpx;
    report_.message = translated("gps", "There was an error parsing the GPX file.");
    progress_.closeProgress();
    errors_.present(translated("gps", "Error!"), report_.message);
    return false;
}

} // namespace pinmora
