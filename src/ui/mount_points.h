#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace pinmora {

/// The folders of a mount table (lines as of fstab(5)) at which desktops and people mount cards,
/// receivers and disks: those of devices below /media, /run/media and /mnt. None of a network:
/// what is offered gets looked at, and that look may never end.
std::vector<std::string> mountPointsIn(std::string_view table);

/// Those of this machine. Reads the kernel's table and asks no volume.
std::vector<std::string> mountPoints();

} // namespace pinmora
