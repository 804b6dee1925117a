#include "platform/log_file.h"

#include "platform/date.h"
#include "platform/file_descriptor.h"

#include <QChar>
#include <QString>

#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <system_error>

namespace pinmora {

namespace fs = std::filesystem;

namespace {

bool isLineBreak(QChar character) {
    constexpr QStringView breaks = u"\n\r\v\f\u0085\u2028\u2029";
    return breaks.contains(character);
}

/// One line of UTF-8 that shows what the entry says, and does nothing else to who looks at it.
std::string lineFrom(std::string_view entry) {
    QString line;
    bool breaks = false;
    for (const QChar character : QString::fromUtf8(entry.data(), std::ssize(entry))) {
        if (isLineBreak(character)) {
            breaks = true;
            continue;
        }
        if (std::exchange(breaks, false) && !line.isEmpty()) {
            line += QStringLiteral(" | ");
        }
        const bool isControl = character.category() == QChar::Other_Control;
        line += character == u'\t' ? QChar(u' ')
                : isControl        ? QChar(QChar::ReplacementCharacter)
                                   : character;
    }
    return line.toStdString();
}

fs::path formerOf(const fs::path &path) {
    return fs::path(path).concat(".1");
}

std::string contentsOf(const fs::path &file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

void LogFile::append(std::string_view entry) {
    const std::lock_guard lock(mutex_);
    LocalZone zone;
    const auto now = std::chrono::floor<Date::duration>(std::chrono::system_clock::now());
    const std::string line =
        textFromDate(now, "%Y-%m-%d %H:%M:%S", zone) + " " + lineFrom(entry) + "\n";
    std::error_code none;
    fs::create_directories(path_.parent_path(), none);
    const std::uintmax_t size = fs::file_size(path_, none);
    if (!none && size > 0 && size + line.size() > limit_) {
        fs::rename(path_, formerOf(path_), none);
    }
    constexpr int flags = O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK;
    const FileDescriptor file(::open(path_.c_str(), flags, 0600));
    std::string_view rest = line;
    while (file.isOpen() && !rest.empty()) {
        const ssize_t written = ::write(file.get(), rest.data(), rest.size());
        if (written <= 0) {
            return;
        }
        rest.remove_prefix(static_cast<std::size_t>(written));
    }
}

std::string LogFile::text() const {
    const std::lock_guard lock(mutex_);
    return contentsOf(formerOf(path_)) + contentsOf(path_);
}

} // namespace pinmora
