#include "platform/number_text.h"
#include "rows.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>

using namespace pinmora;

namespace {

/// All of a number, the sign of a zero too: QCOMPARE takes numbers that are near for equal.
QByteArray exactly(double value) {
    return QByteArray::number(value, 'g', 17);
}

} // namespace

class NumberTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leadingNumbers_data() {
        const auto row = test::rowsByValue<QByteArray, double, int>();
        row("47.3825", 47.3825, 47);
        row(" \t-8.5 m", -8.5, -8);
        row("+12", 12, 12);
        row("4738.25,N", 4738.25, 4738);
        row("12,5", 12, 12);
        row("1.2.3", 1.2, 1);
        row(".5", 0.5, 0);
        row("-.5", -0.5, 0);
        row("-0.0", -0.0, 0);
        row("7.", 7, 7);
        row("007", 7, 7);
        row("3e5", 3, 3);
        for (const char *none : {"0x1F", "", ".", "-", "--1", "+-1", "- 1", "inf", "nan", "N47"}) {
            row(none, 0, 0);
        }
        row("2147483647", 2147483647.0, 2147483647);
        row("-2147483649", -2147483649.0, std::numeric_limits<int>::min());
        row("-99999999999999999999", -1e20, std::numeric_limits<int>::min());
        row("99999999999999999999.5", 1e20, std::numeric_limits<int>::max());
    }

    void leadingNumbers() {
        const auto [text, real, whole] = test::fetch<QByteArray, double, int>();
        const std::string read = text.toStdString();
        QCOMPARE(exactly(leadingDouble(read)), exactly(real));
        QCOMPARE(exactly(leadingFloat(read)), exactly(static_cast<float>(real)));
        QCOMPARE(leadingInt(read), whole);
    }

    void outOfRange() {
        const std::string large = '-' + std::string(400, '9');
        const std::string small = "00." + std::string(400, '0') + '1';
        QCOMPARE(exactly(leadingDouble(large)), "-inf");
        QCOMPARE(exactly(leadingFloat(large)), "-inf");
        QCOMPARE(exactly(leadingDouble(small)), "0");
        QCOMPARE(exactly(leadingFloat(small)), "0");
    }

    /// Just above the middle of two neighbours, by less than a double can tell: rounding to double
    /// first gives the middle, and then the even neighbour below.
    void singlePrecisionIsRoundedOnce() {
        const std::string middle = "1.000000059604644775390625";
        QCOMPARE(exactly(leadingFloat(middle + "0000000000000001")),
                 exactly(std::nextafter(1.0F, 2.0F)));
        QCOMPARE(exactly(leadingFloat(middle)), "1");
    }

    void plainDecimals_data() {
        const auto row = test::rows<double, int, QByteArray>();
        row("short", 47.3825, 8, "47.3825");
        row("whole", -120.0, 8, "-120");
        row("cut and rounded", 1.0 / 3 * 2, 8, "0.66666667");
        row("rounded up to whole", 0.999999999, 8, "1");
        row("rounded zero", -1e-9, 8, "0");
        row("no decimals", 1230.4, 0, "1230");
        row("zeros before the point stay", 100.0, 0, "100");
        row("large", 1e21, 8, "1000000000000000000000");
        row("small", 1e-7, 8, "0.0000001");
        row("infinite", std::numeric_limits<double>::infinity(), 8, {});
        row("no number", std::nan(""), 8, {});
    }

    void plainDecimals() {
        const auto [value, decimals, expected] = test::fetch<double, int, QByteArray>();
        QCOMPARE(QByteArray::fromStdString(decimalText(value, decimals)), expected);
    }

    void longestNumbersFit() {
        const double lowest = std::numeric_limits<double>::lowest();
        QCOMPARE(exactly(leadingDouble(decimalText(lowest))), exactly(lowest));
    }

    void fixedTextIsWhatPrintfWrites() {
        std::mt19937 random{11};
        for (int i = 0; i < 200000; ++i) {
            const auto bits = static_cast<std::uint32_t>(random());
            // Every other one of the size of degrees.
            const float value =
                i % 2 == 0 ? std::bit_cast<float>(bits)
                           : static_cast<float>(static_cast<std::int32_t>(bits)) / 11930464.0F;
            char expected[64];
            std::snprintf(expected, sizeof expected, "%.6f", static_cast<double>(value));
            if (fixedText(value, 6) != expected) {
                QCOMPARE(fixedText(value, 6), std::string{expected});
            }
        }
        QCOMPARE(fixedText(0.5F, 0), "0");
        QCOMPARE(fixedText(std::numeric_limits<float>::lowest(), 1),
                 "-340282346638528859811704183484516925440.0");
    }
};

QTEST_APPLESS_MAIN(NumberTextTest)
#include "number_text_test.moc"
