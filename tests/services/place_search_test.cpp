#include "rows.h"
#include "services/folded_text.h"
#include "services/places.h"

using namespace pinmora;

namespace {

constexpr const char *few =
    "C\tFrance\nR\tÎle-de-France\nParis\t48.85\t2.35\nLe Touquet-Paris-Plage\t50.5\t1.6\n"
    "R\tBrittany\nSaint-Étienne\t47\t-2\n"
    "C\tUnited States\nR\tTexas\nParis\t33.66\t-95.56\nParisville\t30\t-95\n"
    "R\tMaine\nParis\t44.26\t-70.5\nNew Paris Hill\t44.2\t-70.4\n"
    "Le Parisien\t45\t-70\n";

} // namespace

class PlaceSearchTest : public QObject {
    Q_OBJECT

    const Gazetteer gazetteer_{few};
    const FoldedNames names_{gazetteer_};
    const Prominence prominence_{gazetteer_, names_};
    const PlaceSearch search_{gazetteer_, names_, prominence_};

    std::string found(const std::string &text, std::optional<Position> near,
                      std::size_t limit) const {
        std::string places;
        for (const std::size_t place : search_.find(text, near, limit)) {
            places += (places.empty() ? "" : ", ") + std::string(gazetteer_.name(place)) + "/" +
                      std::string(gazetteer_.region(place));
        }
        return places;
    }

private Q_SLOTS:
    void folding_data() {
        const auto row = test::rowsByValue<QByteArray, QByteArray>();
        row("ZÜRICH", "zurich");
        row("Zu\u0308rich", "zurich");
        row("Ångström Łódź Ñuñoa", "angstrom lodz nunoa");
        row("Sønderborg", "sonderborg");
        row("Straße Æro Œuvre", "strasse aero oeuvre");
        row("İstanbul Iğdır", "istanbul igdir");
        row("L’Aquila, O'Fallon St. Gallen", "laquila ofallon st gallen");
        row("  Aix--en / Provence (F) ", "aix en provence f");
        row("Phan Rang–Tháp Chàm Đồng Hới", "phan rang thap cham dong hoi");
        row("КИЇВ Ёлкино Αθήνα", "киів елкино αθηνα");
        row("東京 ﬁ 🏔 12", "東京 fi 12");
        row("a\xff"
            "b\xc3",
            "a b");
        row("\xed\xa0\x80\xf4\x90\x80\x80 x", "x");
    }
    void folding() {
        const auto [text, result] = test::fetch<QByteArray, QByteArray>();
        QCOMPARE(QByteArray::fromStdString(folded(text.toStdString())), result);
    }

    void finds_data() {
        // result: seen from Maine
        const auto row = test::rowsByValue<std::string, std::string>();
        row("PARIS", "Paris/Maine, Paris/Texas, Paris/Île-de-France, Parisville/Texas, "
                     "New Paris Hill/Maine, Le Parisien/Maine, "
                     "Le Touquet-Paris-Plage/Île-de-France");
        row("parisv", "Parisville/Texas");
        row("aris", "");
        row("paris, texas", "Paris/Texas, Parisville/Texas");
        row("paris,TEX,unit", "Paris/Texas, Parisville/Texas");
        row("paris, states", "Paris/Maine, Paris/Texas, Parisville/Texas, New Paris Hill/Maine, "
                             "Le Parisien/Maine");
        row("paris, exas", "");
        row("paris, ile de france", "Paris/Île-de-France, Le Touquet-Paris-Plage/Île-de-France");
        row("paris texas", "Paris/Texas, Parisville/Texas");
        row("new paris united states", "New Paris Hill/Maine");
        row("saint etienne", "Saint-Étienne/Brittany");
        row("Paris,", "Paris/Maine, Paris/Texas, Paris/Île-de-France, Parisville/Texas, "
                      "New Paris Hill/Maine, Le Parisien/Maine, "
                      "Le Touquet-Paris-Plage/Île-de-France");
        row("le tou", "Le Touquet-Paris-Plage/Île-de-France");
        for (const char *nothing : {"", " , ", ", texas", "?!"}) {
            row(nothing, "");
        }
    }
    void finds() {
        const auto [text, result] = test::fetch<std::string, std::string>();
        QCOMPARE(found(text, Position{44, -70}, 20), result);
    }

    void limitAndOrderWithoutAPosition() {
        QCOMPARE(found("paris", std::nullopt, 2), "Paris/Maine, Paris/Île-de-France");
        QCOMPARE(found("paris", std::nullopt, 0), "");
    }

    void whatNobodyTypes_data() {
        const auto row = test::rows<QByteArray>();
        row("10 kB", QByteArray(10'000, 'a'));
        row("10 kB of commas", QByteArray(10'000, ','));
        row("many words", QByteArray("a ").repeated(100));
        row("many areas", QByteArray("zqx,").repeated(70));
        row("bytes", QByteArray("\0\xff\n\t\xc3", 5));
        row("two names", "Zug\nZürich");
    }
    void whatNobodyTypes() {
        const auto [text] = test::fetch<QByteArray>();
        QVERIFY(BundledNames::get().search().find(text.toStdString(), {}, 20).empty());
    }

    void wholeGazetteer() {
        const auto &gazetteer = Places::bundled().gazetteer();
        const auto best = BundledNames::get().search().find("zurich", {}, 1);
        QCOMPARE(best.size(), 1U);
        QCOMPARE(gazetteer.name(best.front()), std::string_view("Zürich"));
    }
};

QTEST_APPLESS_MAIN(PlaceSearchTest)
#include "place_search_test.moc"
