#include "platform/single_byte_encoding.h"

#include <QString>
#include <QStringDecoder>

namespace pinmora {

bool mapSingleByteEncoding(const char *name, int (&codePoints)[256]) {
    if (!QStringDecoder(name).isValid()) {
        return false;
    }
    for (int byte = 0; byte < 256; ++byte) {
        QStringDecoder decoder(name, QStringDecoder::Flag::Stateless);
        const char encoded = static_cast<char>(byte);
        const QString text = decoder.decode(QByteArrayView(&encoded, 1));
        const bool isOne = text.size() == 1 && !text.front().isSurrogate() &&
                           text.front() != QChar::ReplacementCharacter;
        codePoints[byte] = isOne ? text.front().unicode() : -1;
    }
    return true;
}

} // namespace pinmora
