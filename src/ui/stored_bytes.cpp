#include "ui/stored_bytes.h"

#include "platform/defaults.h"

namespace pinmora {

QByteArray storedBytes(const Defaults &defaults, std::string_view key) {
    return QByteArray::fromBase64(QByteArray::fromStdString(defaults.text(key).value_or("")));
}

void storeBytes(Defaults &defaults, std::string_view key, const QByteArray &bytes) {
    defaults.setText(key, bytes.toBase64().toStdString());
}

} // namespace pinmora
