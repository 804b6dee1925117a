#pragma once

#include <map>
#include <string>
#include <string_view>

namespace pinmora {

/// The address that a "tileServer" setting means: "" OpenStreetMap's, LocalServer::noTiles no tiles
/// at all ("").
std::string tileAddress(const std::string &setting);

/// The map page with the address of its tiles and its words (pageWords()) in the places that are
/// kept for them.
std::string mapPage(std::string_view page, std::string_view tileAddress, std::string_view words);

/// What the page may load, and from where: its own files, and pictures from where its tiles are.
std::string contentSecurityPolicy(std::string_view tileAddress);

/// The content type by a file name's ending.
std::string contentType(std::string_view fileName);

} // namespace pinmora
