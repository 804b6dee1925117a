#include "shell/preferences.h"

#include "places/test_service.h"
#include "rows.h"
#include "shell/address_rules.h"
#include "shell/desk.h"

using namespace pinmora;

namespace {

using Judge = std::string (*)(const std::string &);
using Does = std::function<void(Desk &)>;
using Holds = std::function<bool(Desk &)>;

/// The addresses that the map's page has been asked for at, one behind the other.
std::string pagesAskedFor(Desk &desk) {
    std::string asked;
    desk.interface().webView1.attach([&asked](const MapView::Command &command) {
        if (const auto *const page = std::get_if<PageRequest>(&command)) {
            asked += page->address + '\n';
        }
    });
    desk.interface().webView1.detach();
    return asked;
}

Preferences &of(Desk &desk) {
    return desk.parts().preferences;
}

} // namespace

class PreferencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void whatCanBeStored_data() {
        const auto row = test::rows<Judge, std::string, bool>();
        for (const char *const fit :
             {"http://a", "https://a.example:8080/b?c=d", "http://[::1]/"}) {
            row(fit, webAddressProblem, fit, true);
        }
        for (const char *const unfit : {"", "a.example", "ftp://a", "https://", "file:///etc",
                                        "http://a b", "http://a/\"", "{z}{x}{y}"}) {
            row(unfit, webAddressProblem, unfit, false);
        }
        for (const char *const fit : {"https://t/{z}/{x}/{y}.png", "http://t?q={y},{x},{z}",
                                      "https://{s}.t.example/{z}/{x}/{y}{r}.png"}) {
            row(fit, tileAddressProblem, fit, true);
        }
        for (const char *const unfit : {"", "none", "https://t/", "https://t/{z}/{x}.png",
                                        "https://t/{z}/{x}/{y", "ftp://t/{z}/{x}/{y}"}) {
            row(unfit, tileAddressProblem, unfit, false);
        }
        row("no host", placeHostProblem, "", true);
        row("host", placeHostProblem, "a.example:80", true);
        row("address for a host", placeHostProblem, "http://a", false);
        row("no namespace", placeNamespaceProblem, "", true);
        row("namespace", placeNamespaceProblem, "urn:a/", true);
        row("namespace without its slash", placeNamespaceProblem, "urn:a", false);
    }
    void whatCanBeStored() {
        const auto [judge, text, isFit] = test::fetch<Judge, std::string, bool>();
        QCOMPARE(judge(text).empty(), isFit);
    }

    void whatIsUnfitLeavesAllAsItWas() {
        Defaults defaults;
        AddressPreference tiles(defaults, "tileServer", {"", "none"}, tileAddressProblem);
        const std::string good = "https://t/{z}/{x}/{y}";
        tiles.choose(1);
        tiles.choose(2);
        QVERIFY(!tiles.takeOver() && !tiles.field.problem.get().empty());
        tiles.type(good);
        tiles.type("https://t/{z}/{x}/");
        QVERIFY(!tiles.takeOver());
        QCOMPARE(defaults.text("tileServer"), "none");
        tiles.type(' ' + good);
        QCOMPARE(defaults.text("tileServer"), "none"); // a person is typing
        QVERIFY(tiles.takeOver() && tiles.field.problem.get().empty());
        QCOMPARE(defaults.text("tileServer"), good);

        tiles.type("x");
        tiles.choose(0);
        QVERIFY(!defaults.text("tileServer") && !tiles.field.enabled.get() && tiles.takeOver());
        tiles.choose(2); // what was in force last comes back
        QCOMPARE(defaults.text("tileServer"), good);
        tiles.type("x");
        QVERIFY(tiles.takeBack() && !tiles.takeBack());
        QCOMPARE(tiles.field.text.get(), good);
        defaults.setText("tileServer", "none"); // by somebody else
        QCOMPARE(tiles.choice.get(), std::size_t{1});
    }

    void whatIsChosenHoldsAtOnce_data() {
        const auto row = test::rows<Does, std::string, std::string, Holds>();
        row(
            "more types", [](Desk &desk) { of(desk).morePhotoTypes.choose(true); },
            "morePhotoTypes", "1",
            [](Desk &desk) { return desk.delegate.photoTypes.isPict("a.HEIC"); });
        row(
            "reading", [](Desk &desk) { of(desk).logReading.choose(LogReading::Tolerant); },
            "logReading", "tolerant",
            [](Desk &desk) { return desk.parts().gps.reading() == LogReading::Tolerant; });
        row(
            "wizard", [](Desk &desk) { of(desk).startsInWizard.choose(true); }, "useWizard", "1",
            [](Desk &desk) { return !desk.parts().wizardOutlets.dontShowWizardButton.on.get(); });
        row(
            "version check",
            [](Desk &desk) {
                desk.parts().versionCheck.checkNewVersion();
                of(desk).checksVersion.choose(false);
            },
            "versionCheck", "1",
            [](Desk &desk) {
                return desk.parts().versionCheck.testUpdate.get()->noCheck.on.get();
            });
        row(
            "lane", [](Desk &desk) { of(desk).toolLane.choose(ToolLane::Shared); }, "toolLane",
            "shared",
            [](Desk &desk) {
                return toolSettingsFrom(desk.delegate.defaults).lane == ToolLane::Shared;
            });
        row(
            "patience", [](Desk &desk) { of(desk).patience.stepBy(2); }, "toolPatience", "140",
            [](Desk &desk) {
                return toolSettingsFrom(desk.delegate.defaults).patience ==
                       std::chrono::seconds(140);
            });
        row(
            "page",
            [](Desk &desk) {
                of(desk).mapPage.type("https://m.test/");
                of(desk).mapPage.choose(1);
            },
            "mapServer", "https://m.test/",
            [](Desk &desk) {
                return pagesAskedFor(desk) == "https://m.test/maps/index3.php?w=434&h=400\n";
            });
    }
    void whatIsChosenHoldsAtOnce() {
        const auto [choose, key, word, holds] =
            test::fetch<Does, std::string, std::string, Holds>();
        Desk desk;
        desk.start();
        QVERIFY(!holds(desk));
        choose(desk);
        QVERIFY(holds(desk));
        QCOMPARE(Defaults().text(key), word); // also on the disk
    }

    void tilesComeWithThePageLoadedAnew() {
        std::string tiles;
        Pinmora_AppDelegate delegate(
            PINMORA_SOURCE_DIR "/samples", {},
            {.address = [] { return std::string("http://own"); },
             .setTileServer = [&tiles](const std::string &setting) { tiles = setting; }});
        delegate.defaults.setText("versionInfoURL", "");
        delegate.awakeFromNib();
        int loads = 0;
        delegate.interface.webView1.attach([&](const MapView::Command &command) {
            loads += std::holds_alternative<PageRequest>(command) ? 1 : 0;
        });
        delegate.subsystems().preferences.tiles.choose(1);
        QCOMPARE(tiles, "none");
        QCOMPARE(loads, 2);
    }

    void theNextPlaceIsAskedOfTheServiceChosen() {
        TestService one;
        TestService other;
        Desk desk;
        desk.delegate.defaults.setText("placeServer", one.address());
        desk.start();
        image &photo = desk.addPhoto("a", "2026:05:08 10:00:00");
        photo.updateLatAndLon({"1", "2"});
        QTRY_COMPARE(one.requests.size(), std::size_t{1});
        of(desk).placeService.type(other.address());
        QVERIFY(of(desk).takeOver());
        photo.updateLatAndLon({"3", "4"});
        QTRY_COMPARE(other.requests.size(), std::size_t{1});
        of(desk).looksUpPlaces.choose(false);
        QCOMPARE(desk.parts().placeNames.awaited.get(), std::size_t{0});
    }

    void theProgramDoesNotEndOnAnUnfitAddress() {
        Desk desk;
        desk.start();
        of(desk).placeService.choose(1);
        of(desk).placeService.type("https://places.test");
        of(desk).placeHost.type("a b");
        QVERIFY(desk.delegate.applicationShouldTerminate() == TerminateReply::Cancel);
        QVERIFY(desk.parts().preferencesWindow.visible.get());
        of(desk).placeService.choose(0); // the host counts no more
        QVERIFY(desk.delegate.applicationShouldTerminate() == TerminateReply::Now);
        QVERIFY(!desk.delegate.defaults.text("placeServerHost"));
    }
};

QTEST_GUILESS_MAIN(PreferencesTest)
#include "preferences_test.moc"
