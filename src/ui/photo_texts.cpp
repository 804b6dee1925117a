#include "ui/photo_texts.h"

#include "platform/number_text.h"
#include "store/image.h"
#include "ui/position_origin.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <cmath>
#include <string_view>

namespace pinmora {

namespace {

QString timeWithoutYear(Date date) {
    LocalZone zone;
    return QString::fromStdString(localizedTextFromDate(date, "%e %b %H:%M:%S", zone)).trimmed();
}

} // namespace

QString shortTime(Date date) {
    LocalZone zone;
    const auto yearOf = [&zone](Date one) { return textFromDate(one, "%Y", zone); };
    const auto now =
        std::chrono::time_point_cast<std::chrono::microseconds>(std::chrono::system_clock::now());
    return yearOf(date) == yearOf(now)
               ? timeWithoutYear(date)
               : QString::fromStdString(localizedTextFromDate(date, "%e %b %Y %H:%M:%S", zone))
                     .trimmed();
}

namespace photo_texts {
namespace {

QString textOf(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A text that is no number is shown as it is.
QString rounded(const Text &text, int decimals) {
    const std::optional<double> number = plainDecimal(text.view());
    return number ? QString::number(*number, 'f', decimals) : textOf(text.view());
}

QString takenWithYear(const image &photo) {
    return photo.captureTime() ? QString::fromStdString(photo.time_string()).trimmed() : QString();
}

} // namespace

QString name(const image &photo) {
    const QString base = textOf(photo.image_name().view());
    const QString extension = textOf(photo.extension().view());
    return extension.isEmpty() ? base : base + QLatin1Char('.') + extension;
}

QString taken(const image &photo) {
    return photo.captureTime() ? shortTime(*photo.date()) : QString();
}

QString takenInLengths(const image &photo) {
    constexpr QChar shorterOneFollows(0x9c); // to whatever elides a text
    return photo.captureTime() ? taken(photo) + shorterOneFollows + timeWithoutYear(*photo.date())
                               : QString();
}

QString position(const image &photo) {
    return photo.lat_and_lon()
               ? rounded(photo.lat(), 5) + QStringLiteral(", ") + rounded(photo.lon(), 5)
               : QString();
}

QString altitude(const image &photo) {
    return photo.alt().view().empty()
               ? QString()
               : QCoreApplication::translate("ui", "%1 m").arg(rounded(photo.alt(), 0));
}

QString distance(std::optional<double> metres) {
    constexpr double kilometre = 1000;
    if (!metres) {
        return {};
    }
    if (const double whole = std::round(*metres); whole < kilometre) {
        return QCoreApplication::translate("ui", "%1 m").arg(whole, 0, 'f', 0);
    }
    const double tenths = std::round(*metres / kilometre * 10);
    const bool isFar = tenths >= 100;
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return QCoreApplication::translate("ui", "%1 km")
        .arg(isFar ? locale.toString(std::round(*metres / kilometre), 'f', 0)
                   : locale.toString(tenths / 10, 'g', 2));
}

QString place(const image &photo) {
    if (!photo.city().view().empty() && photo.place_distance()) {
        return textOf(photo.city().view()) + QStringLiteral(", ") +
               distance(photo.place_distance());
    }
    for (const Text *name : {&photo.city(), &photo.prov(), &photo.country()}) {
        if (!name->view().empty()) {
            return textOf(name->view());
        }
    }
    return {};
}

QString altitudeAndPlace(const image &photo) {
    QStringList parts{altitude(photo), place(photo)};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" · "));
}

QString gap(std::optional<std::chrono::seconds> gap) {
    using namespace std::chrono;
    if (!gap) {
        return {};
    }
    const seconds size = abs(*gap);
    if (size >= days{1}) {
        //: days
        return QCoreApplication::translate("ui", "%1 d").arg(floor<days>(size).count());
    }
    const hh_mm_ss parts(size);
    const auto twoDigits = [](auto number) {
        return QStringLiteral("%1").arg(number.count(), 2, 10, QLatin1Char('0'));
    };
    const QString secondsText = QLatin1Char(':') + twoDigits(parts.seconds());
    return parts.hours().count() > 0 ? QString::number(parts.hours().count()) + QLatin1Char(':') +
                                           twoDigits(parts.minutes()) + secondsText
                                     : QString::number(parts.minutes().count()) + secondsText;
}

QString sentence(const image &photo, std::optional<std::chrono::seconds> gap) {
    QStringList parts{name(photo)};
    const QString time = takenWithYear(photo);
    parts << (time.isEmpty() ? QCoreApplication::translate("ui", "no capture time")
                             : QCoreApplication::translate("ui", "taken %1").arg(time));
    if (photo.lat_and_lon()) {
        parts << position(photo) << altitude(photo) << place(photo)
              << position_origin::words(photo);
    } else {
        parts << QCoreApplication::translate("ui", "no position");
    }
    if (gap) {
        parts << QCoreApplication::translate("ui", "%1 from the nearest track point")
                     .arg(photo_texts::gap(gap));
    }
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

} // namespace photo_texts

} // namespace pinmora
