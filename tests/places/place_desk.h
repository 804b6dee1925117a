#pragma once

#include "places/test_service.h"

#include "persistence/undo_manager.h"
#include "places/place_names.h"
#include "store/image.h"
#include "store/library_model.h"

#include <QEventLoop>
#include <QTest>
#include <QTimer>

/// Photos, undo, and the lookup of their names at a service of the test's own.
struct PlaceDesk {
    explicit PlaceDesk(pinmora::PlaceLimits limits = {})
        : names(
              context,
              [this] {
                  return pinmora::PlaceService{
                      .address = service.address(), .host = "", .nameSpace = "urn:test/"};
              },
              limits) {
        model.setPlaceNames(&names);
    }

    /// One that was there before.
    pinmora::image &addPhoto() {
        auto &photo = context.insert<pinmora::image>();
        context.commitChanges();
        undo.removeAllActions();
        return photo;
    }
    void endTurn() { QCoreApplication::processEvents(); }
    /// Whether the service comes to have been asked as often as that.
    bool isAsked(std::size_t times) {
        return QTest::qWaitFor([&] { return service.requests.size() >= times; }) && hasAsked(times);
    }
    /// Whether it has been, and nothing else is on its way.
    bool hasAsked(std::size_t times) const { return service.requests.size() == times; }
    /// Whether the last of the names arrives, or is given up.
    bool isDone() {
        QEventLoop loop; // QTest's own waiting sleeps between its turns
        const pinmora::Connection arriving = names.awaited.onChange([&](std::size_t left) {
            if (left == 0) {
                loop.quit();
            }
        });
        QTimer::singleShot(60'000, &loop, &QEventLoop::quit);
        if (names.awaited.get() > 0) {
            loop.exec();
        }
        return names.awaited.get() == 0;
    }
    /// The service answers its latest request.
    bool answer(const QByteArray &text, const QByteArray &headers = {}) {
        service.requests.back().answer(text, headers);
        return isDone();
    }

    pinmora::NotificationCentre notifications;
    pinmora::LibraryModel model{notifications};
    pinmora::Context context{model};
    pinmora::UndoManager undo{context};
    TestService service;
    pinmora::PlaceNames names;
};

inline QByteArray namesOf(const pinmora::image &photo) {
    QByteArray text = QByteArray::fromStdString(photo.city().string()) + '|' +
                      QByteArray::fromStdString(photo.prov().string()) + '|' +
                      QByteArray::fromStdString(photo.country().string());
    if (photo.place_distance()) {
        text += ' ' + QByteArray::number(*photo.place_distance());
    }
    return text;
}
