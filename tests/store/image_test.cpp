#include "store/image.h"

#include "persistence/change_observer.h"
#include "persistence/context.h"
#include "rows.h"
#include "store/library_model.h"

#include <functional>

using namespace pinmora;

namespace {

/// Notes everything that others get to hear of a photo, in order.
struct Listener : ChangeObserver, PlaceNameLookup {
    void didChange(Record &, std::string_view key) override { add(key); }
    void lookUp(image &photo) override {
        add("lookup " + photo.lat().string() + " " + photo.lon().string());
    }
    void add(std::string_view event) {
        events << QByteArray(event.data(), qsizetype(event.size()));
    }
    QByteArray take() { return std::exchange(events, {}).join(", "); }

    QByteArrayList events;
};

using Step = std::function<void(image &)>;

} // namespace

/// What a photo record does beyond holding values.
class ImageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
        tzset();
        model_.setPlaceNames(&listener_);
        observation_ = notifications_.addObserver(locationChange, [this](const Notification &note) {
            const auto position = std::any_cast<PositionTexts>(note.object);
            listener_.add("moved " + position[0] + " " + position[1]);
        });
    }

    void init() {
        context_ = std::make_unique<Context>(model_);
        photo_ = &context_->insert<image>();
        context_->addObserver(listener_);
        listener_.take();
    }

    void cleanup() { context_->removeObserver(listener_); }

    void position_data() {
        const auto row = test::rows<Value, std::string, bool>();
        row("negative", "-12.5", "-12.5", true);
        row("half a degree", "-0.5", "-0.5", true);
        row("zero", "0", "0", false);
        row("minus zero", "-0", "-0", false);
        row("signed, zeros kept", "+012.500", "+012.500", false);
        row("leading blanks", "  -1", "  -1", true);
        row("a number and more", "-3 degrees", "-3 degrees", true);
        row("no number", "-west", "-west", false);
        row("empty", "", "", false);
        row("nothing", {}, "", false);
        row("decimal number", 151.2, "151.2", false);
        row("negative number", -0.000025, "-0.000025", true);
        row("whole number", std::int32_t(-7), "-7", true);
    }

    void position() {
        const auto [written, text, negative] = test::fetch<Value, std::string, bool>();
        photo_->setValue(written, "lat");
        photo_->setValue(written, "lon");
        QCOMPARE(photo_->lat().string(), text);
        QCOMPARE(photo_->lat().hasValue(), written.hasValue());
        QCOMPARE(photo_->lon().string(), text);
        QCOMPARE(photo_->lat_ref().string(), negative ? "S" : "N");
        QCOMPARE(photo_->lon_ref().string(), negative ? "W" : "E");
        QCOMPARE(photo_->lat_and_lon(), !text.empty());
        QCOMPARE(photo_->zoom_active(), !text.empty());
        QCOMPARE(photo_->has_maker(), text.empty());
        photo_->setValue(written, "alt");
        QCOMPARE(photo_->alt().string(), text);

        photo_->updateLatAndLon({text, text});
        QCOMPARE(photo_->lat().view() == text && photo_->lon().view() == text, true);
        QCOMPARE(photo_->lat_ref().string() + photo_->lon_ref().string(), negative ? "SW" : "NE");
    }

    void whatIsTold_data() {
        const auto row = test::rows<QByteArray, Step>();
        // Keys that depend on another are told of inside its own pair of notices.
        const QByteArray flags = "lat_and_lon, zoom_active, has_maker, ";
        const QByteArray lat = "lat_ref, " + flags + "lat";
        const QByteArray lon = "lon_ref, " + flags + "lon";
        const QByteArray both = flags + "lat, " + flags + "lon, lat_ref, lon_ref";
        row("one coordinate", lat, [](image &p) { p.setLat("1"); });
        row("an empty one beside it", lon + ", " + lat,
            [](image &p) { p.setLon(""), p.setLat("1"); });
        row("the second one", lat + ", " + lon + ", moved 1 2, lookup 1 2",
            [](image &p) { p.setLat("1"), p.setLon("2"); });
        row("both again",
            lat + ", " + lon + ", " + lat + ", moved 3 2, lookup 3 2, " + lon +
                ", moved 3 4, lookup 3 4",
            [](image &p) {
                p.setLoading(true), p.setLat("1"), p.setLon("2"), p.setLoading(false);
                p.setLat("3"), p.setLon("4");
            });
        const auto place = [](const PositionTexts &position, bool loading = false) {
            return [=](image &p) { p.setLoading(loading), p.updateLatAndLon(position); };
        };
        row("both at once", both + ", moved 1 2, lookup 1 2", place({"1", "2"}));
        row("none at once", both, place({"", ""}));
        row("while loading", both, place({"1", "2"}, true));
        row("zoom", "zoomtext, zoom", [](image &p) { p.setZoom(12); });
        row("date", "theDateString, time_string, date", [](image &p) { p.setDate(""); });
        row("another key", "file_path", [](image &p) { p.setValue("x", "file_path"); });
    }

    void whatIsTold() {
        const auto [told, step] = test::fetch<QByteArray, Step>();
        step(*photo_);
        QCOMPARE(listener_.take(), told);
    }

    void date_data() {
        // seconds: since 1970, universal time; -1 for no date
        const auto row = test::rowsByValue<std::string, qint64>();
        row("2008:06:21 14:03:59", 1214049839); // summer time: 12:03:59 UTC
        row("2008:12:21 14:03:59", 1229864639);
        for (const char *none : {"21/06/2008", "2008:06:21 14:03:59.5", "2008:06:21T14:03:59",
                                 "2008:06:31 14:03:59", " "}) {
            row(none, -1);
        }
    }

    void date() {
        const auto [text, seconds] = test::fetch<std::string, qint64>();
        photo_->setDate(text);
        QCOMPARE(photo_->date().has_value(), seconds >= 0);
        if (seconds >= 0) {
            QCOMPARE(qint64(photo_->date()->time_since_epoch().count()), seconds * 1'000'000);
            QCOMPARE(photo_->time_string(), text.substr(8, 2) +
                                                (text[6] == '6' ? " Jun " : " Dec ") +
                                                text.substr(0, 4) + text.substr(10));
        } else {
            QCOMPARE(photo_->time_string() + photo_->theDateString(), "");
        }
    }

    void theEmptyDateIsNow() {
        const auto before =
            std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
        photo_->setDate("");
        QVERIFY(photo_->date() >= before);
        QVERIFY(photo_->date() <= std::chrono::system_clock::now());
        photo_->setDate(std::nullopt);
        QVERIFY(!photo_->date());
    }

    void placeDistance_data() {
        const auto row = test::rows<bool, Step>();
        row("another city", false, [](image &p) { p.setCity("Bern"); });
        row("another latitude", false, [](image &p) { p.setLat("1"); });
        row("another longitude", false, [](image &p) { p.setLon("1"); });
        row("no position", false, [](image &p) { p.updateLatAndLon({"", ""}); });
        row("another country", true, [](image &p) { p.setCountry("CH"); });
        row("a comment", true, [](image &p) { p.setComments("x"); });
    }

    void placeDistance() {
        const auto [stays, step] = test::fetch<bool, Step>();
        photo_->setPlace_distance(2312);
        step(*photo_);
        QCOMPARE(photo_->place_distance() == 2312, stays);
    }

    /// Which keys are a person's work on the photo, and which only how it is shown or found.
    void changeFlag() {
        const QByteArrayList quiet =
            QByteArray("zoom zoom_reset valid_file no_capture_time offset_time_original camera "
                       "position_source position_gap full_file_path place_distance file_size")
                .split(' ');
        int marking = 0;
        for (const Property &property : image::description().properties()) {
            if (property.kind != Property::Kind::Attribute) {
                continue;
            }
            photo_->setHasChangesFalse();
            photo_->setValue("1", property.name);
            const bool isQuiet =
                quiet.contains(QByteArray(property.name.data(), qsizetype(property.name.size())));
            QVERIFY2(photo_->getHasChanges() != isQuiet, property.name.data());
            marking += isQuiet ? 0 : 1;
        }
        QCOMPARE(marking, 17);
        photo_->setHasChangesFalse();
        photo_->updateLatAndLon({"", ""});
        QVERIFY(photo_->getHasChanges());
        QVERIFY(!context_->insert<image>().getHasChanges());
    }

    void shownTexts() {
        QCOMPARE(photo_->zoomtext(), "Map zoom level 0");
        photo_->setZoom(12);
        QCOMPARE(photo_->valueForKey("zoomtext").toText().string(), "Map zoom level 12");
        QCOMPARE(photo_->theDateString(), "");
        photo_->setDate("2008:06:01 04:03:09");
        QCOMPARE(photo_->theDateString(), "Sun 1 Jun 2008 04:03:09");
        QCOMPARE(photo_->time_string(), "1 Jun 2008 04:03:09");
        QCOMPARE(photo_->map_datum().string(), "WGS-84");
    }

    void photosOfNoLibraryKeepPositions() {
        image loose;
        loose.setLat("1");
        loose.setLon("-2");
        QCOMPARE(loose.lon_ref().string(), "W");
        QCOMPARE(listener_.take(), QByteArray());
    }

private:
    NotificationCentre notifications_;
    LibraryModel model_{notifications_};
    Listener listener_;
    NotificationCentre::Observation observation_;
    std::unique_ptr<Context> context_;
    image *photo_ = nullptr;
};

QTEST_APPLESS_MAIN(ImageTest)
#include "image_test.moc"
