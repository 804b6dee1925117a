#include "update/proposed_name.h"

#include <QUrl>

#include <algorithm>

namespace pinmora {

/// An address may hide a path in its last part ("..%2Fx"), or a control character.
std::string proposedName(const std::string &address) {
    const QUrl url = QUrl::fromEncoded(QByteArray::fromStdString(address));
    std::string name = url.fileName(QUrl::FullyDecoded).toStdString();
    name.erase(0, name.find_last_of('/') + 1);
    std::erase_if(name, [](char c) { return (c >= 0 && c < ' ') || c == '\x7f'; });
    return name == "." || name == ".." ? std::string() : name;
}

} // namespace pinmora
