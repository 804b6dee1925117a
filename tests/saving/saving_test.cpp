#include "saving/saving.h"

#include "persistence/context.h"
#include "platform/notification_centre.h"
#include "saving/folders.h"
#include "saving/metadata_arguments.h"
#include "store/image.h"
#include "store/library_model.h"

#include <QTest>

using namespace pinmora;

class SavingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aSnapshotHoldsTheRecordsTexts() {
        image photo;
        photo.setFull_file_path("/photos/IMG_1.JPG");
        photo.setImage_name("harbour");
        photo.setExtension("JPG");
        photo.setImg_description("description");
        photo.setComments("comments");
        photo.setLat("-33.8568");
        photo.setLon("151.2153");
        photo.setAlt("5");
        photo.setCountry("country");
        photo.setProv("prov");
        const PhotoSnapshot snapshot = snapshotOf(photo);
        QCOMPARE(metadataArguments(snapshot, {}, snapshot.source),
                 (std::vector<std::string>{
                     "-overwrite_original_in_place", "-ImageDescription=description",
                     "-UserComment=comments", "-GPSLatitude=33.856800", "-GPSLatitudeRef=S",
                     "-GPSLongitude=151.215302", "-GPSLongitudeRef=E", "-GPSMapDatum=WGS-84",
                     "-Country-PrimaryLocationName=country", "-Province-State=prov",
                     "-GPSAltitude=5", "-GPSAltitudeRef=Above Sea Level", "/photos/IMG_1.JPG"}));
        QCOMPARE(snapshot.imageName + "." + snapshot.extension, "harbour.JPG");
    }

    void renamesRecordsInTheGivenOrder() {
        NotificationCentre notifications;
        LibraryModel model{notifications};
        Context context{model};
        std::vector<image *> all;
        for (const char *name : {"a", "trip_2", "b"}) {
            all.push_back(&context.insert<image>());
            all.back()->setImage_name(name);
        }
        Saving{""}.updateThesePict({all[2], all[0]}, all, "trip");
        QCOMPARE(all[0]->image_name().string(), "trip_3");
        QCOMPARE(all[1]->image_name().string(), "trip_2");
        QCOMPARE(all[2]->image_name().string(), "trip_1");
    }

    void copiesAFileUnlessTheNameIsTaken() {
        const Folders folders;
        const Saving saving{folders.resources};
        const auto source = folders.photo("a", "new").source;
        QVERIFY(!saving.copyTheFile(source, folders.copies, "b.jpg"));
        QCOMPARE(bytesOf(folders.copies / "b.jpg"), "new");
        writeBytes(source, "newer");
        QCOMPARE(saving.copyTheFile(source, folders.copies, "b.jpg"),
                 std::make_error_code(std::errc::file_exists));
        QCOMPARE(bytesOf(folders.copies / "b.jpg"), "new");
        QCOMPARE(folders.copyNames(), std::set<std::string>{"b.jpg"});
    }
};

QTEST_APPLESS_MAIN(SavingTest)
#include "saving_test.moc"
