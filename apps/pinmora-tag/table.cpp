#include "report.h"

#include "shown_text.h"

#include "matching/reading_comparison.h"
#include "platform/translation.h"

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

QString shownTime(WallClock time) {
    return toQString(textFromWallClock(time, "%Y-%m-%d %H:%M:%S"));
}

Row headings() {
    const std::array<std::string, columns> words{
        translated("tag", "Name"),
        //: heading: when a photo was taken
        translated("tag", "Taken"),
        //: heading: when a photo was taken by a clock that is right
        translated("tag", "Corrected"),
        translated("tag", "Position"),
        translated("tag", "Altitude"),
        //: heading: the names of the place where a photo was taken
        translated("tag", "Place"),
        //: heading: how far a photo and its track point are apart in time
        translated("tag", "Apart"),
        //: heading: the copy's file name
        translated("tag", "Saved as"),
    };
    Row row;
    std::ranges::transform(words, row.begin(), toQString);
    return row;
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
        photo.taken ? shownTime(*photo.taken) : toQString(translated("tag", "no capture time")),
        photo.corrected ? shownTime(*photo.corrected) : QString(),
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

std::string countOf(Status status, std::size_t count) {
    switch (status) {
    case Status::Saved:
        return translated("tag", "%n saved", "%n saved", count);
    case Status::Matched:
        return translated("tag", "%n matched", "%n matched", count);
    case Status::Unmatched:
        return translated("tag", "%n unmatched", "%n unmatched", count);
    case Status::Failed:
        break;
    }
    return translated("tag", "%n failed", "%n failed", count);
}

/// "8 photos: 6 saved, 1 unmatched, 1 failed"
std::string photosText(const std::vector<PhotoLine> &photos) {
    std::string parts;
    for (const Status status :
         {Status::Saved, Status::Matched, Status::Unmatched, Status::Failed}) {
        const auto count = std::ranges::count(photos, status, &PhotoLine::status);
        if (count > 0) {
            parts.append(parts.empty() ? "" : ", ")
                .append(countOf(status, static_cast<std::size_t>(count)));
        }
    }
    const std::string all = translated("tag", "%n photos", "%n photo", photos.size());
    return parts.empty() ? all : filled(translated("tag", "%1: %2"), {all, parts});
}

/// "8 photos: 6 saved, 1 unmatched, 1 failed. 2 tracks, 900 points."
std::string summaryOf(const Report &report) {
    const auto far =
        std::count_if(report.photos.begin(), report.photos.end(), [](const PhotoLine &photo) {
            return photo.secondsApart && std::chrono::seconds(*photo.secondsApart) > sameOuting;
        });
    //: %1 counts the photos, %2 the tracks, %3 the points, each with its word
    std::string text = filled(translated("tag", "%1. %2, %3."),
                              {photosText(report.photos),
                               translated("tag", "%n tracks", "%n track", report.tracks),
                               translated("tag", "%n points", "%n point", report.points)}) +
                       '\n';
    if (far > 0) {
        const auto minutes = std::chrono::floor<std::chrono::minutes>(sameOuting).count();
        text += filled(translated("tag", "%n of them more than %1 minutes from the nearest point.",
                                  "%n of them more than %1 minutes from the nearest point.",
                                  static_cast<std::size_t>(far)),
                       {std::to_string(minutes)}) +
                '\n';
    }
    return text;
}

/// What there is to say of a photo, and first how it went where that is not as it should be.
std::string remarkOn(const PhotoLine &photo) {
    std::string message = terminalText(photo.message);
    switch (photo.status) {
    case Status::Unmatched:
        return filled(translated("tag", "unmatched: %1"), {message});
    case Status::Failed:
        return filled(translated("tag", "failed: %1"), {message});
    case Status::Saved:
    case Status::Matched:
        break;
    }
    return message;
}

} // namespace

std::string tableText(const Report &report) {
    std::vector<Row> rows{headings()};
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
        if (const std::string remark = remarkOn(photo); !remark.empty()) {
            text += QStringLiteral("    ") + toQString(remark) + u'\n';
        }
    }
    return text.toStdString() + summaryOf(report);
}

} // namespace pinmora::tag
