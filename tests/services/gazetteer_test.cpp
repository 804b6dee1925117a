#include "rows.h"
#include "services/bundled_files.h"
#include "services/gazetteer.h"
#include "services/gunzip.h"

#include <cmath>

using namespace pinmora;

class GazetteerTest : public QObject {
    Q_OBJECT

    static std::string allOf(const Gazetteer &gazetteer) {
        std::string text;
        for (std::size_t i = 0; i < gazetteer.size(); ++i) {
            const auto [lat, lon] = gazetteer.position(i);
            text += QStringLiteral("%1|%2|%3|%4|%5\n")
                        .arg(QString::fromStdString(std::string(gazetteer.name(i))),
                             QString::fromStdString(std::string(gazetteer.region(i))),
                             QString::fromStdString(std::string(gazetteer.country(i))))
                        .arg(lat, 0, 'f', 5)
                        .arg(lon, 0, 'f', 5)
                        .toStdString();
        }
        return text;
    }

private Q_SLOTS:
    void lines_data() {
        const auto row = test::rows<QByteArray, QByteArray>();
        row("nothing", "", "");
        row("regions and countries head their places",
            "C\tA\nR\tr\none\t1.5\t-2\nR\ts\ntwo\t0\t0\nC\tB\nR\t\nthree\t-90\t180\n",
            "one|r|A|1.50000|-2.00000\ntwo|s|A|0.00000|0.00000\nthree||B|-90.00000|180.00000\n");
        row("a country does not inherit the region", "C\tA\nR\tr\nC\tB\none\t1\t1\n",
            "one||B|1.00000|1.00000\n");
        row("all decimals", "C\tA\nx\t47.36667\t-0.00001\n", "x||A|47.36667|-0.00001\n");
        row("no line end at the end", "C\tA\nx\t1\t2", "x||A|1.00000|2.00000\n");
        row("a place called as a heading is", "C\tA\nC\t1\t2\nR\t3\t4\n",
            "C||A|1.00000|2.00000\nR||A|3.00000|4.00000\n");
        row("lines that are none of these",
            "one\t1\t1\nR\tr\nC\tA\n\nx\nx\t1\ny\t1\tz\ny\t1.234567\t2\ny\t."
            "5\t2\ny\t1\t\ny\t1\t2\t3"
            "\ny\t1234\t1\ny\t1.2.3\t1\ny\t-\t1\n",
            "");
    }
    void lines() {
        const auto [text, places] = test::fetch<QByteArray, QByteArray>();
        QCOMPARE(QByteArray::fromStdString(allOf(Gazetteer(text.toStdString()))), places);
    }

    // A name is a field of "City, Region, Country": a comma in one would shift those behind it.
    void bundledNamesAreFields() {
        const Gazetteer gazetteer = Gazetteer::bundled();
        QVERIFY(gazetteer.size() > 170'000);
        const auto isField = [](std::string_view name) {
            return name.find_first_of(",\t\n\r\x7f") == std::string_view::npos &&
                   !name.starts_with(' ') && !name.ends_with(' ') &&
                   name.find("  ") == std::string_view::npos;
        };
        for (std::size_t i = 0; i < gazetteer.size(); ++i) {
            const auto [lat, lon] = gazetteer.position(i);
            const bool fit = isField(gazetteer.name(i)) && !gazetteer.name(i).empty() &&
                             isField(gazetteer.region(i)) && isField(gazetteer.country(i)) &&
                             !gazetteer.country(i).empty() && std::abs(lat) <= 90 &&
                             std::abs(lon) <= 180;
            QVERIFY2(fit, std::string(gazetteer.name(i)).c_str());
        }
        for (std::size_t i = 0; i < gazetteer.headings(); ++i) {
            const std::string country(gazetteer.headingCountry(i));
            QVERIFY2(country.find_first_of("()") == std::string::npos, country.c_str());
        }
    }

    void damagedArchives() {
        // "hello", as gzip -n packs it.
        const QByteArray whole = QByteArray::fromHex("1f8b0800000000000203cb48cdc9c907008"
                                                     "6a6103605000000");
        const auto content = [](const QByteArray &bytes) {
            return gunzip({bytes.data(), static_cast<std::size_t>(bytes.size())});
        };
        QCOMPARE(content(whole), "hello");
        for (qsizetype length = 0; length < whole.size(); ++length) {
            QVERIFY(!content(whole.first(length)));
        }
        for (qsizetype at = 10; at < whole.size(); ++at) {
            QByteArray damaged = whole;
            damaged[at] = static_cast<char>(damaged[at] ^ 0x41);
            QVERIFY2(!content(damaged), QByteArray::number(at));
        }
    }
};

QTEST_APPLESS_MAIN(GazetteerTest)
#include "gazetteer_test.moc"
