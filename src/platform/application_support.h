#pragma once

#include <filesystem>
#include <string>

namespace pinmora {

/// The folder in which programs keep a person's data, each in a folder of its own: XDG_DATA_HOME
/// where that is an absolute path, else ".local/share" in the home folder, else, where no home is
/// told, the folder of temporary files.
std::filesystem::path applicationSupportBase();

/// HOME where that is an absolute path, else the folder of the system's account; "/" without one.
std::string homeFolder();

} // namespace pinmora
