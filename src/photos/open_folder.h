#pragma once

#include <dirent.h>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <system_error>

namespace pinmora {

/// A folder that is open for listing. Entries are looked at from it, so that nobody can put another
/// folder in its place meanwhile.
class OpenFolder {
public:
    explicit OpenFolder(const std::string &path);
    ~OpenFolder();
    OpenFolder(const OpenFolder &) = delete;
    OpenFolder &operator=(const OpenFolder &) = delete;

    /// The next entry, in the file system's order and without "." and ".."; null at the end and
    /// after an error. Valid until the next call.
    const dirent *next();
    /// What kept the folder from being opened, or read to its end.
    std::error_code error() const { return error_; }

    /// DT_DIR, DT_REG, DT_LNK or another of these; looked up only where the listing does not say.
    unsigned char kindOf(const dirent &entry) const;
    /// Links are followed.
    bool leadsToFolder(const char *name) const;
    /// Links are followed; nothing for one that leads nowhere, or round in a circle.
    std::optional<struct stat> statusOf(const char *name) const;
    std::optional<struct stat> status() const;

private:
    DIR *folder_;
    std::error_code error_;
};

} // namespace pinmora
