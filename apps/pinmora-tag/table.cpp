#include "report.h"

#include "shown_text.h"

#include "matching/reading_comparison.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>

namespace pinmora::tag {

namespace {

constexpr std::size_t columns = 8;
using Row = std::array<QString, columns>;

constexpr std::array<bool, columns> alignedRight{false, false, false, false,
                                                 true,  false, true,  false};

QString fileName(const std::string &path) {
    return toQString(terminalText(std::filesystem::path(path).filename().native()));
}

QString shownTime(const std::optional<WallClock> &time, const char *without) {
    return time ? toQString(textFromWallClock(*time, "%Y-%m-%d %H:%M:%S"))
                : QString::fromUtf8(without);
}

/// "Zürich, Zurich, Switzerland", without what is not known.
QString place(const PhotoLine &photo) {
    QStringList names{toQString(terminalText(photo.city)), toQString(terminalText(photo.prov)),
                      toQString(terminalText(photo.country))};
    names.removeAll(QString());
    return names.join(QStringLiteral(", "));
}

Row rowOf(const PhotoLine &photo) {
    const bool hasPosition = !photo.lat.empty() && !photo.lon.empty();
    return {
        fileName(photo.file),
        shownTime(photo.taken, "no capture time"),
        shownTime(photo.corrected, ""),
        hasPosition ? toQString(terminalText(photo.lat + ", " + photo.lon)) : QStringLiteral("-"),
        photo.alt.empty() ? QString()
                          : toQString(terminalText(photo.alt)).trimmed() + QStringLiteral(" m"),
        place(photo),
        photo.secondsApart ? QStringLiteral("%1 s").arg(*photo.secondsApart) : QString(),
        photo.savedAs.empty() ? QStringLiteral("-") : fileName(photo.savedAs),
    };
}

QString lineOf(const Row &row, const std::array<qsizetype, columns> &widths) {
    QString line;
    for (std::size_t i = 0; i < columns; ++i) {
        const QString padding(widths[i] - row[i].size(), u' ');
        line += alignedRight[i] ? padding + row[i] : row[i] + padding;
        line += QStringLiteral("  ");
    }
    while (line.endsWith(u' ')) {
        line.chop(1);
    }
    return line + u'\n';
}

/// "8 photos: 6 saved, 1 unmatched, 1 failed. 2 tracks, 900 points."
QString summaryOf(const Report &report) {
    QStringList parts;
    for (const Status status :
         {Status::Saved, Status::Matched, Status::Unmatched, Status::Failed}) {
        const auto count =
            std::count_if(report.photos.begin(), report.photos.end(),
                          [status](const PhotoLine &photo) { return photo.status == status; });
        if (count > 0) {
            parts << QStringLiteral("%1 %2").arg(count).arg(toQString(statusName(status)));
        }
    }
    const auto far =
        std::count_if(report.photos.begin(), report.photos.end(), [](const PhotoLine &photo) {
            return photo.secondsApart && std::chrono::seconds(*photo.secondsApart) > sameOuting;
        });
    return QStringLiteral("%1 photos%2. %3 tracks, %4 points.\n")
               .arg(report.photos.size())
               .arg(parts.isEmpty() ? QString()
                                    : QStringLiteral(": ") + parts.join(QStringLiteral(", ")))
               .arg(report.tracks)
               .arg(report.points) +
           (far == 0 ? QString()
                     : QStringLiteral("%1 of them more than %2 minutes from the nearest point.\n")
                           .arg(far)
                           .arg(std::chrono::floor<std::chrono::minutes>(sameOuting).count()));
}

} // namespace

std::string tableText(const Report &report) {
    std::vector<Row> rows{{QStringLiteral("Name"), QStringLiteral("Taken"),
                           QStringLiteral("Corrected"), QStringLiteral("Position"),
                           QStringLiteral("Altitude"), QStringLiteral("Place"),
                           QStringLiteral("Apart"), QStringLiteral("Saved as")}};
    for (const PhotoLine &photo : report.photos) {
        rows.push_back(rowOf(photo));
    }
    std::array<qsizetype, columns> widths{};
    for (const Row &row : rows) {
        for (std::size_t i = 0; i < columns; ++i) {
            widths[i] = std::max(widths[i], row[i].size());
        }
    }
    QString text = lineOf(rows.front(), widths);
    for (std::size_t i = 0; i < report.photos.size(); ++i) {
        const PhotoLine &photo = report.photos[i];
        text += lineOf(rows[i + 1], widths);
        const bool plain = photo.status == Status::Saved || photo.status == Status::Matched;
        if (!plain || !photo.message.empty()) {
            text += QStringLiteral("    ");
            text += plain ? QString() : toQString(statusName(photo.status)) + QStringLiteral(": ");
            text += toQString(terminalText(photo.message)) + u'\n';
        }
    }
    return (text + summaryOf(report)).toStdString();
}

} // namespace pinmora::tag
