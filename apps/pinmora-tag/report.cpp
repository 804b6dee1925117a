#include "report.h"

#include "shown_text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace pinmora::tag {

namespace {

QJsonValue jsonTime(const std::optional<WallClock> &time) {
    return time ? QJsonValue(toQString(textFromWallClock(*time, "%Y-%m-%dT%H:%M:%S")))
                : QJsonValue();
}

} // namespace

std::string_view statusName(Status status) {
    switch (status) {
    case Status::Saved:
        return "saved";
    case Status::Matched:
        return "matched";
    case Status::Unmatched:
        return "unmatched";
    case Status::Failed:
        break;
    }
    return "failed";
}

int exitStatus(const Report &report) {
    const bool allDone =
        std::none_of(report.photos.begin(), report.photos.end(), [](const PhotoLine &photo) {
            return photo.status == Status::Failed || photo.status == Status::Unmatched;
        });
    return allDone && !report.trouble ? 0 : 1;
}

std::string jsonText(const Report &report) {
    QJsonArray photos;
    for (const PhotoLine &photo : report.photos) {
        photos.append(QJsonObject{
            {QStringLiteral("file"), toQString(validText(photo.file))},
            {QStringLiteral("taken"), jsonTime(photo.taken)},
            {QStringLiteral("corrected"), jsonTime(photo.corrected)},
            {QStringLiteral("lat"), toQString(photo.lat)},
            {QStringLiteral("lon"), toQString(photo.lon)},
            {QStringLiteral("alt"), toQString(photo.alt)},
            {QStringLiteral("city"), toQString(validText(photo.city))},
            {QStringLiteral("prov"), toQString(validText(photo.prov))},
            {QStringLiteral("country"), toQString(validText(photo.country))},
            {QStringLiteral("seconds_apart"),
             photo.secondsApart ? QJsonValue(static_cast<qint64>(*photo.secondsApart))
                                : QJsonValue()},
            {QStringLiteral("saved_as"), toQString(validText(photo.savedAs))},
            {QStringLiteral("status"), toQString(statusName(photo.status))},
            {QStringLiteral("message"), toQString(validText(photo.message))},
        });
    }
    const QJsonObject document{{QStringLiteral("tracks"), static_cast<qint64>(report.tracks)},
                               {QStringLiteral("points"), static_cast<qint64>(report.points)},
                               {QStringLiteral("photos"), photos}};
    return QJsonDocument(document).toJson(QJsonDocument::Indented).toStdString();
}

} // namespace pinmora::tag
