#include "places/place_answer.h"

#include "places/soap_envelope.h"
#include "platform/xml_parser.h"

#include <charconv>
#include <utility>

namespace pinmora {

namespace {

/// "Zürich, Zurich, Switzerland": what stands after a third comma is no part of it.
std::array<std::optional<std::string>, 3> namesIn(std::string_view text) {
    std::array<std::optional<std::string>, 3> names;
    bool isOver = false;
    for (auto name = names.begin(); name != names.end() && !isOver; ++name) {
        const std::size_t comma = text.find(',');
        std::string_view part = text.substr(0, comma);
        part.remove_prefix(part.starts_with(' ') ? 1 : 0);
        *name = part;
        isOver = comma == std::string_view::npos;
        text.remove_prefix(isOver ? text.size() : comma + 1);
    }
    return names;
}

/// Prefixes are the service's own choice.
bool isResult(std::string_view name) {
    name.remove_prefix(name.rfind(':') + 1);
    return name == std::string(placeOperation) + "Result";
}

class AnswerEvents : public XmlEvents {
public:
    void didStartElement(std::string_view, const char *const *) override {}
    /// Text ahead of the result counts as the beginning of its first part.
    void foundCharacters(std::string_view text) override { currentStringValue_ += text; }
    void didEndElement(std::string_view name) override {
        if (isResult(name)) {
            answer_ = {.names = namesIn(std::exchange(currentStringValue_, {}))};
        }
    }

    std::optional<PlaceAnswer> take() { return std::move(answer_); }

private:
    std::string currentStringValue_;
    std::optional<PlaceAnswer> answer_;
};

} // namespace

std::optional<PlaceAnswer> readPlaceAnswer(std::string_view body) {
    AnswerEvents events;
    XmlParser(events).parse(body, true);
    return events.take();
}

std::optional<double> readPlaceDistance(std::string_view header) {
    constexpr int halfWayAround = 20'040'000; // m, along a meridian or the equator
    int metres = 0;
    const char *const end = header.data() + header.size();
    const auto [stop, error] = std::from_chars(header.data(), end, metres);
    const bool isFit = error == std::errc() && stop == end && metres >= 0 &&
                       metres <= halfWayAround && !header.starts_with('-');
    return isFit ? std::optional<double>(metres) : std::nullopt;
}

} // namespace pinmora
