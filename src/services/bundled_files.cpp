#include "services/bundled_files.h"

#include "services/gunzip.h"

#include <QDir>
#include <QFile>

// A resource in a static library has to be asked for, outside any namespace.
static void linkGazetteer() {
    Q_INIT_RESOURCE(gazetteer);
}

namespace pinmora {

std::string bundledGazetteer() {
    linkGazetteer();
    QFile file(QStringLiteral(":/places/gazetteer.tsv.gz"));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    // Mapped: the resource is in the program's memory as it is.
    const auto size = static_cast<std::size_t>(file.size());
    const uchar *const bytes = file.map(0, file.size());
    if (!bytes) {
        return {};
    }
    return gunzip({reinterpret_cast<const char *>(bytes), size}).value_or("");
}

std::map<std::string, std::string> bundledMapFiles() {
    std::map<std::string, std::string> files;
    const QDir folder(QStringLiteral(":/map"));
    for (const QString &name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly)) {
            files[name.toStdString()] = file.readAll().toStdString();
        }
    }
    return files;
}

} // namespace pinmora
