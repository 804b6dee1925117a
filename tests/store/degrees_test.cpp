#include "store/degrees.h"

#include "persistence/context.h"
#include "platform/notification_centre.h"
#include "rows.h"
#include "store/library_model.h"

#include <array>
#include <bit>
#include <cmath>

using namespace pinmora;

namespace {

constexpr std::array components = {"degree",
                                   "degree_min_degree",
                                   "degree_min_min",
                                   "degree_min_sec_degree",
                                   "degree_min_sec_min",
                                   "degree_min_sec_sec"};
using Axis = std::string;

std::string key(std::size_t component, const Axis &axis) {
    return components[component] + ("_" + axis);
}

/// "33 0x1.8p+3 nan -": numbers as they are, a bar for none.
std::vector<degrees::Number> numbers(const QByteArray &text) {
    std::vector<degrees::Number> read;
    for (const QByteArray &word : text.split(' ')) {
        read.push_back(word == "-" ? degrees::Number() : std::strtod(word.constData(), nullptr));
    }
    return read;
}

bool sameBits(degrees::Number a, degrees::Number b) {
    const auto bits = [](double v) {
        return std::bit_cast<std::uint64_t>(std::isnan(v) ? 0 / 0. : v);
    };
    return a.has_value() == b.has_value() && (!a || bits(*a) == bits(*b));
}

/// Notes what is changed, and that notices come in pairs around each change.
struct Listener : ChangeObserver {
    void willChange(Record &, std::string_view changing) override { open.emplace_back(changing); }
    void didChange(Record &, std::string_view changed) override {
        paired = paired && std::erase(open, std::string(changed)) == 1;
        events << QByteArray(changed.data(), qsizetype(changed.size()));
    }
    /// The changed keys without their axis and without what depends on them.
    QByteArray take(const Axis &axis) {
        events.removeAll(QByteArray("negative_") + axis.c_str());
        QByteArray all = events.join(' ');
        events.clear();
        return all.replace(QByteArray("_") + axis.c_str(), "");
    }

    std::vector<std::string> open;
    QByteArrayList events;
    bool paired = true;
};

using Conversion = void (degrees::*)();

} // namespace

/// The three notations of a position. Each row is run for both axes.
class DegreesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        context_ = std::make_unique<Context>(model_);
        record_ = &context_->insert<degrees>();
        listener_ = {};
        context_->addObserver(listener_);
    }

    void cleanup() { context_->removeObserver(listener_); }

    /// Worked out from the definition with exact fractions, rounded once per operation. Rows whose
    /// names begin with "single" or "double" come out differently when a step is taken in the other
    /// precision.
    void componentsFollow_data() {
        // typed: components, set in this order
        const auto row = test::rows<QList<int>, QByteArray, QByteArray>();
        const QList<int> d{0};
        row("D south", d, "-33.8568", "-33.8568 -33 0x1.9b4398p+5 -33 51 0x1.87af4p+4");
        row("D exact", d, "-122.25", "-122.25 -122 15 -122 15 0");
        row("D none", d, "-", "- 0 0 0 0 0");
        row("D below 0", d, "-0.5", "-0.5 0 30 0 30 0");
        row("D decimal", d, "47.3825", "47.3825 47 0x1.6f332p+4 47 22 0x1.c7fdcp+5");
        row("D tiny rest", d, "-1.7", "-1.7 -1 0x1.500002p+5 -1 42 0x1.68p-13");
        row("D up to the next degree", d, "46.999999", "46.999999 46 60 46 60 0");
        row("single, double", d, "16777217.5", "16777217.5 16777217 120 16777217 60 0");
        row("D huge", d, "-1e300", "-1e300 -2147483648 inf -2147483648 2147483648 inf");
        row("D no number", d, "nan", "- 0 0 0 0 0");

        const QList<int> dm{1, 2};
        row("D-M exact", dm, "-122 15", "-122.25 -122 15 -122 15 0");
        row("D-M", dm, "-33 51.408", "-0x1.0edabap+5 -33 51.408 -33 51 0x1.87ae5p+4");
        row("D-M as given", dm, "12.7 30.5", "0x1.a6aaaap+3 12.7 30.5 12 30 30");
        row("D-M -0", dm, "-0.0 15", "0.25 -0.0 15 0 15 0");
        row("D-M negative minutes", dm, "-5 -10.5", "-0x1.34ccccp+2 -5 -10.5 -5 10 30");
        row("D-M over 60", dm, "5 75.25", "0x1.904444p+2 5 75.25 5 75 15");
        row("D-M minutes only", {2}, "15", "0.25 - 15 0 15 0");
        row("D-M minutes gone", {1, 2}, "7 -", "7 7 - 7 0 0");
        row("D-M huge", {2}, "-1e300", "-inf - -1e300 0 2147483648 inf");
        row("D-M no number", {2}, "nan", "nan - nan 0 0 nan");
        row("single: D of D-M", dm, "59 18.307", "0x1.da70ep+5 59 18.307 59 18 0x1.26b82p+4");
        row("single: seconds of D-M", dm, "8 53.022", "0x1.1c4746p+3 8 53.022 8 53 0x1.51e9p+0");

        const QList<int> dms{3, 4, 5};
        row("D-M-S exact", dms, "-122 15 0", "-122.25 -122 15 -122 15 0");
        row("D-M-S", dms, "-33 51 24.48", "-0x1.0edabap+5 -33 0x1.9b4396p+5 -33 51 24.48");
        row("D-M-S as given", dms, "12.7 5 30", "0x1.995554p+3 12.7 5.5 12.7 5 30");
        row("D-M-S -0", dms, "-0.0 30 0", "0.5 -0.0 30 -0.0 30 0");
        row("D-M-S degree gone", dms, "- 30 0", "0.5 - 30 - 30 0");
        row("D-M-S negative", dms, "1 -20 -36.6", "0x1.5020c4p-1 1 0x1.49c29p+4 1 -20 -36.6");
        row("double: D of D-M-S", dms, "0 7 59.42", "0x1.10bc98p-3 0 0x1.ff619ep+2 0 7 59.42");
        row("double: minutes of D-M-S", dms, "0 5 53.48",
            "0x1.922e84p-4 0 0x1.790b9ap+2 0 5 53.48");
    }

    void componentsFollow() {
        const auto [typed, to, expected] = test::fetch<QList<int>, QByteArray, QByteArray>();
        const std::vector<degrees::Number> given = numbers(to);
        for (const Axis &axis : {Axis("lat"), Axis("lon")}) {
            for (qsizetype i = 0; i < typed.size(); ++i) {
                record_->setValue(given[std::size_t(i)], key(std::size_t(typed[i]), axis));
            }
            QCOMPARE(difference(axis, expected), std::string());
            if (axis == "lat") {
                QCOMPARE(difference("lon", "- - - - - -"), std::string());
            }
        }
    }

    /// From D 10.5, D-M 20 30, D-M-S 40 15 36.
    void conversionsByName_data() {
        const auto row = test::rows<Conversion, Conversion, QByteArray>();
        using D = degrees;
        row("D to D-M", &D::updateDegreeMin_FromD_lat, &D::updateDegreeMin_FromD_lon,
            "10.5 10 30 40 15 36");
        row("D to D-M-S", &D::updateDegreeMinSec_FromD_lat, &D::updateDegreeMinSec_FromD_lon,
            "10.5 20 30 10 30 0");
        row("D-M to D", &D::updateDegree_FromDM_lat, &D::updateDegree_FromDM_lon,
            "20.5 20 30 40 15 36");
        row("D-M to D-M-S", &D::updateDegreeMinSec_FromDM_lat, &D::updateDegreeMinSec_FromDM_lon,
            "10.5 20 30 20 30 0");
        row("D-M-S to D", &D::updateDegree_FromDMS_lat, &D::updateDegree_FromDMS_lon,
            "40.259998321533203 20 30 40 15 36");
        row("D-M-S to D-M", &D::updateDegreeMin_FromDMS_lat, &D::updateDegreeMin_FromDMS_lon,
            "10.5 40 15.600000381469727 40 15 36");
    }

    void conversionsByName() {
        const auto [lat, lon, expected] = test::fetch<Conversion, Conversion, QByteArray>();
        record_->setNegative_lat(true); // counts only where the whole degrees are 0
        const std::vector<degrees::Number> start = numbers("10.5 20 30 40 15 36");
        for (const Axis &axis : {Axis("lat"), Axis("lon")}) {
            for (std::size_t i = 0; i < start.size(); ++i) {
                record_->setPrimitiveValue(start[i], key(i, axis));
            }
        }
        (record_->*lat)();
        QCOMPARE(difference("lat", expected), std::string());
        QCOMPARE(difference("lon", "10.5 20 30 40 15 36"), std::string());
        (record_->*lon)();
        QCOMPARE(difference("lon", expected), std::string());
    }

    void oneEditIsTwoConversions_data() {
        const auto row = test::rows<int, QByteArray>();
        const QByteArray d = "degree";
        const QByteArray dm = "degree_min_degree degree_min_min";
        const QByteArray dms = "degree_min_sec_degree degree_min_sec_min degree_min_sec_sec";
        for (int i = 0; i < int(components.size()); ++i) {
            const char *edited = components[std::size_t(i)];
            row(edited, i,
                (QByteArray(edited) + ' ' +
                 (i == 0  ? dm + ' ' + dms
                  : i < 3 ? d + ' ' + dms
                          : d + ' ' + dm)));
        }
    }

    void oneEditIsTwoConversions() {
        const auto [component, changed] = test::fetch<int, QByteArray>();
        for (const Axis &axis : {Axis("lat"), Axis("lon")}) {
            record_->setValue(12.5, key(std::size_t(component), axis));
            QCOMPARE(listener_.take(axis), changed);
        }
        QVERIFY(listener_.paired && listener_.open.empty());
    }

    /// Steps are components by number, or "h", and what they are set to.
    void hemisphere_data() {
        const auto row = test::rowsByValue<QByteArray, QByteArray, bool>();
        row("0 -0.5 2 15", "-0.25 0 15 0 15 0", true);
        row("0 -0.5 5 36", "-0.50999999046325684 0 30.600000381469727 0 30 36", true);
        row("0 -0.5 2 0", "0 0 0 0 0 0", true);
        row("0 -0.5 2 0 2 15", "-0.25 0 15 0 15 0", true);
        row("0 -0.5 0 0 2 15", "0.25 0 15 0 15 0", false);
        row("0 -0.5 0 - 2 15", "0.25 0 15 0 15 0", false);
        row("0 -0.5 1 3 1 0", "0.5 0 30 0 30 0", false);
        row("1 -3 1 0 2 30", "-0.5 0 30 0 30 0", true);
        row("3 -3 3 -0.0 4 30", "-0.5 -0 30 -0 30 -", true);
        row("0 0.5 h 1", "-0.5 0 30 0 30 0", true);
        row("0 0.5 h 1 h 0", "0.5 0 30 0 30 0", false);
        row("0 12.25 h 1", "-12.25 -12 15 -12 15 0", true);
        row("h 1", "- - - - - -", true);
        row("h 1 2 30", "-0.5 - 30 0 30 0", true);
        row("h 1 1 4", "4 4 - 4 0 0", false);
    }

    void hemisphere() {
        const auto [steps, expected, negative] = test::fetch<QByteArray, QByteArray, bool>();
        for (const Axis &axis : {Axis("lat"), Axis("lon")}) {
            const QByteArrayList words = steps.split(' ');
            for (qsizetype i = 0; i < words.size(); i += 2) {
                const Value before = record_->valueForKey("negative_" + axis);
                listener_.events.clear();
                if (words[i] == "h") {
                    (record_->*(axis == "lat" ? &degrees::setNegative_lat
                                              : &degrees::setNegative_lon))(words[i + 1] == "1");
                } else {
                    record_->setValue(numbers(words[i + 1])[0], key(words[i].toUInt(), axis));
                }
                QVERIFY(record_->valueForKey("negative_" + axis) == before ||
                        listener_.events.contains("negative_" + QByteArray::fromStdString(axis)));
            }
            QCOMPARE(difference(axis, expected), std::string());
            QCOMPARE(record_->valueForKey("negative_" + axis), Value(negative));
        }
    }

    void positionsInTexts_data() {
        // number: 0: none
        const auto row = test::rows<QByteArray, double>();
        row("number", "-33.8568", -33.8568);
        row("more digits than a float holds", "151.20930012", 151.20930012);
        row("empty", "", 0.);
        row("no number", "unknown", 0.);
    }

    void positionsInTexts() {
        const auto [text, number] = test::fetch<QByteArray, double>();
        const auto isExpected = [expected = number](const degrees::Number &found) {
            return found.has_value() == (expected != 0) && found.value_or(0) == expected;
        };
        record_->showPosition("1", text.constData());
        QVERIFY(record_->degree_lat() == 1.0 && isExpected(record_->degree_lon()));
        record_->showPosition(text.constData(), {});
        QVERIFY(isExpected(record_->degree_lat()) && !record_->degree_lon());
        record_->setValue(text.constData(), "degree_lon");
        QVERIFY(isExpected(record_->degree_lon()));
    }

private:
    /// What is wrong with an axis; nothing when it holds those numbers, bit for bit.
    std::string difference(const Axis &axis, const QByteArray &expected) const {
        const std::vector<degrees::Number> wanted = numbers(expected);
        std::string all;
        bool same = wanted.size() == components.size();
        for (std::size_t i = 0; same && i < components.size(); ++i) {
            const degrees::Number number = record_->valueForKey(key(i, axis)).toNumber();
            all += number ? QByteArray::number(*number, 'g', 17).toStdString() + " " : "- ";
            same = sameBits(number, wanted[i]);
        }
        return same ? "" : axis + " holds " + all;
    }

    NotificationCentre notifications_;
    LibraryModel model_{notifications_};
    Listener listener_;
    std::unique_ptr<Context> context_;
    degrees *record_ = nullptr;
};

QTEST_APPLESS_MAIN(DegreesTest)
#include "degrees_test.moc"
