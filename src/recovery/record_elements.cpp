#include "recovery/record_elements.h"

#include "platform/xml_parser.h"

namespace pinmora {

namespace {

class Elements : public XmlEvents {
public:
    using Take = std::function<bool(std::string_view, const char *const *)>;
    explicit Elements(const Take &take) : take_(take) {}

    bool isGood() const { return good_; }

    void didStartElement(std::string_view name, const char *const *attributes) override {
        if (depth_++ == 1) {
            good_ = good_ && take_(name, attributes);
        } else {
            good_ = good_ && depth_ == 1; // records do not stand in each other
        }
    }
    void foundCharacters(std::string_view) override {}
    void didEndElement(std::string_view) override { --depth_; }

private:
    const Take &take_;
    int depth_ = 0;
    bool good_ = true;
};

} // namespace

bool readRecordElements(
    std::string_view payload,
    const std::function<bool(std::string_view name, const char *const *attributes)> &take) {
    Elements elements(take);
    XmlParser parser(elements);
    return parser.parse("<records>", false) && parser.parse(payload, false) &&
           parser.parse("</records>", true) && elements.isGood();
}

} // namespace pinmora
