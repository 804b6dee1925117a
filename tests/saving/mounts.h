#pragma once

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <unistd.h>

namespace pinmora {

/// Lets this process mount what no other sees: as root, or as root of a user namespace of its own.
/// To be called before there are threads. Why that cannot be; "" when it can.
inline std::string enterOwnMounts() {
    const uid_t user = ::getuid();
    const gid_t group = ::getgid();
    if (::unshare(CLONE_NEWNS) != 0) {
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
            return std::string("no mount namespace: ") + std::strerror(errno);
        }
        std::ofstream("/proc/self/setgroups") << "deny";
        std::ofstream("/proc/self/uid_map") << "0 " << user << " 1";
        std::ofstream("/proc/self/gid_map") << "0 " << group << " 1";
    }
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0
               ? ""
               : std::string("mounts cannot be made private: ") + std::strerror(errno);
}

/// A small file system of its own in a folder, as long as this lives.
class SmallDisk {
public:
    SmallDisk(const std::filesystem::path &folder, std::size_t kibibytes) : folder_(folder) {
        const std::string options = "size=" + std::to_string(kibibytes) + "k";
        isMounted_ = ::mount("tmpfs", folder.c_str(), "tmpfs", 0, options.c_str()) == 0;
    }
    ~SmallDisk() {
        if (isMounted_) {
            ::umount2(folder_.c_str(), MNT_DETACH);
        }
    }
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    bool isMounted() const { return isMounted_; }
    bool makeReadOnly() {
        return ::mount("tmpfs", folder_.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    }

private:
    std::filesystem::path folder_;
    bool isMounted_ = false;
};

} // namespace pinmora
