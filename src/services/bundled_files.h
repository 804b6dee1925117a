#pragma once

#include <map>
#include <string>

namespace pinmora {

/// The text of the gazetteer that comes with the program.
std::string bundledGazetteer();

/// The files of the map page by their names: "index.html", "leaflet.js", ...
std::map<std::string, std::string> bundledMapFiles();

} // namespace pinmora
