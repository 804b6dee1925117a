#include "platform/colour_profile.h"

#include <QColorSpace>

namespace pinmora {

std::string nameOfProfile(std::string_view icc) {
    const auto bytes = QByteArray::fromRawData(icc.data(), static_cast<qsizetype>(icc.size()));
    return QColorSpace::fromIccProfile(bytes).description().toStdString();
}

QImage readyToDraw(QImage image) {
    const QColorSpace screen(QColorSpace::SRgb);
    const QColorSpace own = image.colorSpace();
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                            : QImage::Format_RGB32);
    if (own.isValid() && own != screen) {
        image.convertToColorSpace(screen);
    }
    return image;
}

} // namespace pinmora
