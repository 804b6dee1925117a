#include "ui/file_names.h"

#include <QFile>
#include <QSysInfo>
#include <QUrl>

#include <filesystem>
#include <optional>

namespace pinmora {
namespace {

/// A broken link is there too.
bool isThere(const std::filesystem::path &path) {
    std::error_code error;
    return std::filesystem::exists(std::filesystem::symlink_status(path, error));
}

std::optional<std::filesystem::path> onlyEntryLike(const std::filesystem::path &folder,
                                                   const QString &name) {
    std::optional<std::filesystem::path> found;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string bytes = entry->path().filename().native();
        if (QFile::decodeName(QByteArray::fromStdString(bytes)) == name) {
            if (found) {
                return std::nullopt;
            }
            found = entry->path();
        }
    }
    return error ? std::nullopt : found;
}

} // namespace

std::string filePath(const QUrl &url) {
    const QString host = url.host();
    if (!url.isLocalFile() ||
        !(host.isEmpty() || host == QLatin1String("localhost") ||
          host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0)) {
        return {};
    }
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

QUrl fileUrl(const std::string &path) {
    return QUrl::fromEncoded("file://" +
                             QByteArray::fromStdString(path).toPercentEncoding(QByteArray("/")));
}

std::string filePath(const QString &shown) {
    std::string asShown = QFile::encodeName(shown).toStdString();
    if (isThere(asShown)) {
        return asShown;
    }
    std::filesystem::path path = "/";
    for (const QString &name : shown.split(u'/', Qt::SkipEmptyParts)) {
        const std::filesystem::path next = path / QFile::encodeName(name).toStdString();
        const auto found = isThere(next) ? next : onlyEntryLike(path, name);
        if (!found) {
            return asShown;
        }
        path = *found;
    }
    return path.string();
}

} // namespace pinmora
