#pragma once

#include <string>
#include <string_view>

/// File names and paths as bytes: a name that is not UTF-8 stays what it is.
namespace pinmora {

/// What follows the last dot of a path's last component; "" where no dot is, or nothing after it.
std::string_view pathExtension(std::string_view path);

/// The path from the root on, without "." components, doubled slashes and slashes at the end.
/// Links and ".." are left alone. An empty path stays empty.
std::string absolutePath(std::string_view path);

struct FolderAndName {
    std::string folder; ///< "/" for a file in the root
    std::string name;
};

/// Splits an absolute path before its last component.
FolderAndName splitPath(std::string_view path);

/// Whether `a` stands before `b` in a list for people: letters of either case alike (ASCII), runs
/// of digits by their number, so that IMG_9 comes before IMG_10. Names that differ only in that
/// are ordered by their bytes, which makes the order total.
bool namesInOrder(std::string_view a, std::string_view b);

} // namespace pinmora
