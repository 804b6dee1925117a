#pragma once

#include <string>

class QString;
class QUrl;

namespace pinmora {

// File names are bytes, and need not be UTF-8; the toolkit makes texts of them, which loses bytes
// that are none.

/// The path that a file URL means, with all its bytes; "" when it means none on this machine.
std::string filePath(const QUrl &url);

/// The URL of a path, with all its bytes.
QUrl fileUrl(const std::string &path);

/// The path of what the toolkit shows as that text: the text's own bytes when there is such a file,
/// else, folder by folder, the only entry that looks like it. The text's own bytes too when there
/// is none, or several.
std::string filePath(const QString &shown);

} // namespace pinmora
