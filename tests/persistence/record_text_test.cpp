#include "persistence/record_writer.h"
#include "persistence/sample_desk.h"
#include "rows.h"

#include <bit>
#include <cmath>
#include <limits>

using namespace pinmora;
using namespace pinmora::test;

namespace {

Date dateOf(std::int64_t microseconds) {
    return Date(std::chrono::microseconds(microseconds));
}

/// Ten bytes of which each way of writing them plainly would lose some.
constexpr std::string_view allBytes("\0\x01\xFF\t\n\r &<\"", 10);

} // namespace

class RecordTextTest : public QObject {
    Q_OBJECT

    const Model model{{&Sample::description()}};

    std::string written(const std::function<void(Context &, RecordWriter &)> &work) const {
        std::string text;
        Context context(model);
        RecordWriter writer(text);
        work(context, writer);
        return text;
    }

private Q_SLOTS:
    void valuesComeBack_data() {
        // attribute: "" where its form is of no matter
        const auto add = rows<std::string, Value, std::string>();
        const auto row = [&](const std::string &key, Value value,
                             const std::string &attribute = {}) {
            add(key + " " + attribute.substr(0, 40), key, std::move(value), attribute);
        };
        using Whole = std::numeric_limits<std::int32_t>;
        row("whole", 0, "whole=\"0\"");
        row("whole", Whole::min(), "whole=\"-2147483648\"");
        row("whole", Whole::max(), "whole=\"2147483647\"");
        using Real = std::numeric_limits<double>;
        row("number", 0.1, "number=\"0.1\"");
        row("number", -0.0, "number=\"-0\"");
        for (const double number : {Real::max(), Real::denorm_min(), 1.0 / 3, 1e22}) {
            row("number", number);
        }
        row("number", Real::infinity(), "number=\"inf\"");
        row("number", -Real::infinity(), "number=\"-inf\"");
        row("decimal", 0.1F, "decimal=\"0.1\"");
        row("flag", true, "flag=\"1\"");
        row("flag", false, "flag=\"0\"");
        row("moment", dateOf(0), "moment=\"0\"");
        row("moment", dateOf(1212278400250000), "moment=\"1212278400.25\"");
        row("moment", dateOf(1), "moment=\"0.000001\"");
        row("moment", dateOf(-1), "moment=\"-0.000001\"");
        row("moment", dateOf(-86400000000 * 365 * 20), "moment=\"-630720000\"");
        row("moment", dateOf(std::numeric_limits<std::int64_t>::min()));
        row("moment", dateOf(std::numeric_limits<std::int64_t>::max()));
        row("text", "", "text=\"\"");
        row("text", "47.380000", "text=\"47.380000\"");
        row("text", " two  blanks ", "text=\" two  blanks \"");
        row("text", "a\tb\nc\rd\r\n", "text=\"a&#9;b&#10;c&#13;d&#13;&#10;\"");
        row("text", "<a b=\"c\"> & 'd' &amp; ]]>");
        row("text", "Z\u00fcrich \u4e16\u754c \U0001F5FA",
            "text=\"Z\u00fcrich \u4e16\u754c \U0001F5FA\"");
        row("text", "\x7F\u0085\u00A0\u2028\uFEFF");
        row("text", "\x01", "text.base64=\"AQ==\"");
        row("text", std::string("a\0b", 3), "text.base64=\"YQBi\"");
        row("text",
            "p\xE9"
            "ch\xE9.jpg",
            "text.base64=\"cOljaOkuanBn\"");
        row("text", "\uFFFE");
        row("text", "\uFFFF\xED\xA0\x80"); // and half a surrogate pair
        row("text", std::string(300'000, '"') + std::string(300'000, 'x'));
        row("text", std::string(100'000, '\x02'));
        row("usual", "", "usual=\"\"");
        row("usual", {}); // a new record has a value
        row("bytes", Bytes{}, "bytes=\"\"");
        const auto *const bytes = reinterpret_cast<const std::byte *>(allBytes.data());
        row("bytes", Bytes(bytes, bytes + allBytes.size()), "bytes=\"AAH/CQoNICY8Ig==\"");
    }

    void valuesComeBack() {
        const auto row = fetch<std::string, Value, std::string>();
        const auto &[key, value, attribute] = row;
        const std::string text =
            written([&key = key, &value = value](Context &context, RecordWriter &writer) {
                auto &sample = context.insert<Sample>();
                sample.setPrimitiveValue(value, key);
                writer.write(sample);
            });
        QVERIFY2(text.find(attribute) != std::string::npos, text.c_str());
        Desk desk(model);
        QVERIFY2(desk.read(text), desk.error.c_str());
        for (const Property &property : Sample::description().properties()) {
            const Value expected = property.name == key       ? value
                                   : property.name == "usual" ? Value("usual")
                                                              : Value();
            QVERIFY2(property.primitive(desk.last()) == expected, property.name.data());
        }
        if (const auto number = value.toNumber(); number && key == "number") {
            QCOMPARE(std::signbit(*desk.last().number), std::signbit(*number));
        }
    }

    void notANumberStaysOne() {
        Desk desk(model);
        QVERIFY(desk.read(written([](Context &context, RecordWriter &writer) {
            auto &sample = context.insert<Sample>();
            sample.number = std::numeric_limits<double>::quiet_NaN();
            sample.decimal = -std::numeric_limits<float>::quiet_NaN();
            writer.write(sample);
        })));
        QVERIFY(std::isnan(*desk.last().number) && std::isnan(*desk.last().decimal));
    }

    void everyFloatComesBack() {
        std::vector<std::uint32_t> patterns;
        for (std::uint32_t bits = 0; bits < 0xFF800000U; bits += 1'000'003) {
            if (!std::isnan(std::bit_cast<float>(bits))) {
                patterns.push_back(bits);
            }
        }
        Desk desk(model);
        QVERIFY(desk.read(written([&](Context &context, RecordWriter &writer) {
            for (const std::uint32_t bits : patterns) {
                auto &sample = context.insert<Sample>();
                sample.decimal = std::bit_cast<float>(bits);
                writer.write(sample);
            }
        })));
        const auto samples = desk.context.fetch<Sample>();
        for (std::size_t i = 0; i < patterns.size(); ++i) {
            QCOMPARE(std::bit_cast<std::uint32_t>(*samples.at(i)->decimal), patterns[i]);
        }
    }

    void whatThePlaceTellsIsLeftOut() {
        const std::string text = written([](Context &context, RecordWriter &writer) {
            std::vector<Sample *> samples;
            for (int i = 0; i < 7; ++i) {
                samples.push_back(&context.insert<Sample>());
                samples.back()->usual = {};
            }
            samples[1]->link(samples[0]);
            samples[2]->link(samples[0]);
            samples[4]->link(samples[0]);
            samples[5]->link(samples[4]);
            samples[6]->link(samples[4]);
            context.deleteObject(*samples[3]);
            for (const Sample *sample : context.records<Sample>()) {
                writer.write(*sample);
            }
            samples[6]->link(nullptr);
            writer.write(*samples[6]);
        });
        QCOMPARE(text, "<sample/>\n"
                       "<sample other=\"1\"/>\n"
                       "<sample/>\n"
                       "<sample id=\"5\"/>\n"
                       "<sample other=\"5\"/>\n"
                       "<sample/>\n"
                       "<sample id=\"7\" none=\"other\"/>\n");
        Desk desk(model);
        QVERIFY(desk.read(text.substr(0, text.rfind("<sample"))));
        QCOMPARE(desk.seen, "1: usual* other*\n2: other=1 usual*\n3: usual* other=1\n"
                            "5: usual* other=1\n6: other=5 usual*\n7: usual* other=5\n");
        const auto samples = desk.context.fetch<Sample>();
        QCOMPARE(samples.at(0)->other_, nullptr);
        QCOMPARE(samples.at(3)->other_, samples.at(0));
        QCOMPARE(samples.at(5)->other_, samples.at(3)); // itself a record with a link
        QVERIFY(desk.open.empty());
    }

    void changesNameTheirRecordAndWhatIsGone() {
        const EntityDescription &entity = Sample::description();
        const std::string text = written([&](Context &context, RecordWriter &writer) {
            auto &first = context.insert<Sample>();
            auto &second = context.insert<Sample>();
            second.link(&first);
            second.text = "new";
            const std::vector<const Property *> some{&entity.property("text"),
                                                     &entity.property("whole")};
            const std::vector<const Property *> others{
                &entity.property("other"), &entity.property("number"), &entity.property("usual")};
            writer.writeChanges(second, some);
            writer.writeChanges(second, others);
            second.link(nullptr);
            second.usual = {};
            writer.writeChanges(second, others);
            writer.writeChanges(first, {});
        });
        QCOMPARE(text, "<sample id=\"2\" text=\"new\" none=\"whole\"/>\n"
                       "<sample id=\"2\" other=\"1\" usual=\"usual\" none=\"number\"/>\n"
                       "<sample id=\"2\" none=\"other number usual\"/>\n"
                       "<sample id=\"1\"/>\n");
        Desk desk(model, Extent::Changes);
        QVERIFY2(desk.read(text), desk.error.c_str());
        QCOMPARE(desk.seen, "2: text whole*\n2: other=1 usual number*\n"
                            "2: other* number* usual*\n1:\n");
    }

    void linksToWhatIsNotThereStayOpen() {
        Desk desk(model);
        QVERIFY(desk.read("<sample other=\"2\"/><sample/><sample other=\"9\"/>"));
        QCOMPARE(desk.open.size(), 2U); // the second one's is itself, and known by then
        QCOMPARE(desk.open[0].target, 2U);
        QCOMPARE(desk.open[1].record, &desk.last());
        QVERIFY(!makeLink(desk.last(), *desk.open[1].property, nullptr));
        QVERIFY(makeLink(desk.last(), *desk.open[1].property, &desk.last()));
        QCOMPARE(desk.last().other_, &desk.last());
    }

    void refused_data() {
        const auto add = rows<std::string, Extent, std::string>();
        const auto row = [&](const std::string &element, const std::string &error,
                             Extent extent = Extent::Whole) {
            add(element.substr(0, 60), element, extent, error);
        };
        row("<simple/>", "there is no kind of record called \"simple\"");
        row("<sample colour='red'/>", "sample has no key \"colour\"");
        row("<sample base64='AQ=='/>", "sample has no key \"base64\"");
        row("<sample whole.base64='AQ=='/>", "sample has no key \"whole.base64\"");
        for (const std::string id : {"0", "", "-1", "1 ", "4294967296", "x"}) {
            row("<sample id='" + id + "'/>", "\"" + id + "\" is no id");
        }
        row("<sample/>", "sample has no id", Extent::Changes);
        const auto value = [&](const std::string &key, const std::string &text) {
            row("<sample " + key + "='" + text + "'/>",
                "\"" + text + "\" is no value of sample." + key);
        };
        for (const char *text : {"", "+1", " 1", "1 ", "1.0", "2147483648", "0x1"}) {
            value("whole", text);
        }
        for (const char *text : {"", "1e999", "1,5", "0.5 ", "infinite"}) {
            value("number", text);
        }
        value("decimal", "1e39");
        value("flag", "YES");
        for (const char *text :
             {"", "-", "1.", ".5", "1.0000001", "--1", "1.-5", "1.5.5", "2008-06-01",
              "9223372036854.775808", "99999999999999999999", "-9223372036855"}) {
            value("moment", text);
        }
        std::string wide;
        for (int i = 0; i < 40000; ++i) {
            wide += "\u00e9";
        }
        row("<sample whole='" + wide + "'/>",
            "\"" + wide.substr(0, 60) + "...\" is no value of sample.whole");
        value("bytes", "A");
        value("bytes", "A=B=");
        row("<sample text.base64='A*'/>", "\"A*\" is no value of sample.text");
        row("<sample text='' text.base64=''/>", "sample.text is there twice");
        row("<sample other='1' none='other'/>", "sample.other is there twice");
        row("<sample none='text text'/>", "sample.text is there twice");
        row("<sample none='txt'/>", "sample has no key \"txt\"");
        row("<sample none=' text'/>", "sample has no key \"\"");
        row("<sample other='0'/>", "\"0\" is no id for sample.other");
        row("<sample other='one'/>", "\"one\" is no id for sample.other");
    }

    void refused() {
        const auto [element, extent, error] = fetch<std::string, Extent, std::string>();
        Desk desk(model, extent);
        QVERIFY(!desk.read(element));
        QCOMPARE(desk.error, error);
    }
};

QTEST_APPLESS_MAIN(RecordTextTest)
#include "record_text_test.moc"
