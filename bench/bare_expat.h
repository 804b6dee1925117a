#pragma once

#include "platform/input_file.h"

#include <expat.h>
#include <filesystem>
#include <memory>
#include <vector>

namespace pinmora::bench {

/// What reading an XML file can at best come near to: Expat with handlers that do nothing, the file
/// read in the same blocks.
inline void parseBarely(const std::filesystem::path &path) {
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(nullptr), XML_ParserFree);
    XML_SetElementHandler(
        parser.get(), [](void *, const XML_Char *, const XML_Char **) {},
        [](void *, const XML_Char *) {});
    XML_SetCharacterDataHandler(parser.get(), [](void *, const XML_Char *, int) {});
    InputFile file;
    if (file.open(path)) {
        return;
    }
    std::vector<char> buffer(inputBlockSize);
    for (auto block = file.read(buffer); block && !block->empty(); block = file.read(buffer)) {
        XML_Parse(parser.get(), block->data(), static_cast<int>(block->size()), 0);
    }
    XML_Parse(parser.get(), nullptr, 0, 1);
}

} // namespace pinmora::bench
