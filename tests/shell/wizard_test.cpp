#include "shell/desk.h"

#include <QTest>

#include <utility>

using namespace pinmora;

namespace {

using Press = std::function<void(Subsystems &)>;

/// What a click on each of the wizard's buttons does.
const std::vector<std::pair<std::string, Press>> buttons{
    {"next", [](Subsystems &parts) { parts.wizardOutlets.nextButton.press(); }},
    {"back", [](Subsystems &parts) { parts.wizardOutlets.backButton.press(); }},
    {"map", [](Subsystems &parts) { parts.wizardOutlets.byMapButton.press(); }},
    {"latlon", [](Subsystems &parts) { parts.wizardOutlets.byLatLonButton.press(); }},
    {"known", [](Subsystems &parts) { parts.wizardOutlets.byKnownButton.press(); }},
    {"right", [](Subsystems &parts) { parts.wizardOutlets.clockWasRightButton.press(); }},
    {"log", [](Subsystems &parts) { parts.wizardOutlets.loadLogInstead.press(); }},
    {"step2", [](Subsystems &parts) { parts.wizard.goToStep(2); }},
    {"step4", [](Subsystems &parts) { parts.wizard.goToStep(4); }},
    {"step5", [](Subsystems &parts) { parts.wizard.goToStep(5); }},
};

void press(Desk &desk, const std::string &name) {
    for (const auto &[button, act] : buttons) {
        if (button == name) {
            act(desk.parts());
            return;
        }
    }
    qFatal("there is no button %s", name.c_str());
}

bool allAre(WizardDetails &details, bool visible) {
    for (const Control *control : details.controls()) {
        if (control->visible.get() != visible) {
            return false;
        }
    }
    return true;
}

} // namespace

class WizardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void startsWhereTheSettingSays_data() {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("inWizard");
        QTest::newRow("first start") << QString() << true;
        QTest::newRow("wizard") << QStringLiteral("1") << true;
        QTest::newRow("main window") << QStringLiteral("0") << false;
        QTest::newRow("neither") << QStringLiteral("2") << false;
    }
    void startsWhereTheSettingSays() {
        QFETCH(QString, stored);
        QFETCH(bool, inWizard);
        Pinmora_AppDelegate delegate(PINMORA_SOURCE_DIR "/samples");
        if (!stored.isEmpty()) {
            delegate.defaults.setText("useWizard", stored.toStdString());
        }
        delegate.awakeFromNib();
        WizardOutlets &wizard = delegate.subsystems().wizardOutlets;
        QCOMPARE(delegate.interface.inWizard, inWizard);
        QCOMPARE(delegate.interface.wizardWindow.visible.get(), inWizard);
        QCOMPARE(delegate.interface.window.visible.get(), !inWizard);
        QCOMPARE(wizard.dontShowWizardButton.on.get(), !inWizard);
        QCOMPARE(wizard.useWizard.enabled.get(), !inWizard);
        QCOMPARE(wizard.useAdvanced.enabled.get(), inWizard);
        QCOMPARE(delegate.defaults.text("useWizard").value_or("").empty(), false);
        QVERIFY(!wizard.webView2.visible.get());
        QVERIFY(!wizard.theImageView2.visible.get());
        QVERIFY(allAre(delegate.subsystems().wizardDetails, false));
    }

    void switchesBothWays() {
        Desk desk;
        desk.start();
        image &photo = desk.addPhoto("lake", "2026:05:08 10:00:00", "47.5", "8.5");
        desk.select({&photo});
        WizardOutlets &wizard = desk.parts().wizardOutlets;
        std::vector<std::string> scripts;
        const Connection listening = desk.interface().webView2.scripts.connect(
            [&scripts](const std::string &script) { scripts.push_back(script); });
        wizard.useWizard.press();
        QVERIFY(desk.interface().inWizard);
        QVERIFY(desk.interface().wizardWindow.visible.get());
        QVERIFY(!desk.interface().window.visible.get());
        QCOMPARE(scripts.size(), 1U); // its map shows what is selected
        QVERIFY(scripts.front().starts_with("movePointerWithZoom(47.5,8.5,"));
        desk.interface().errors.errorWindowOpen();
        QCOMPARE(desk.interface().errors.errorWindow.host().get(), &desk.interface().wizardWindow);
        desk.interface().errors.errorWindow.end();
        wizard.useWizard.press(); // disabled
        wizard.useAdvanced.press();
        QVERIFY(!desk.interface().inWizard);
        QVERIFY(desk.interface().window.visible.get());
        QVERIFY(!desk.interface().wizardWindow.visible.get());
        QVERIFY(wizard.useWizard.enabled.get());
        QCOMPARE(desk.parts().arrays.pictureArray.firstSelectedObject(), &photo);
        QCOMPARE(desk.delegate.defaults.text("useWizard").value_or(""), std::string("0"));
    }

    void eachClickFlipsTheStart() {
        Desk desk;
        desk.start();
        for (const char *stored : {"1", "0", "1"}) {
            desk.parts().wizardOutlets.dontShowWizardButton.click();
            QCOMPARE(desk.delegate.defaults.text("useWizard").value_or(""), std::string(stored));
        }
    }

    void wayThroughThePages_data() {
        using Clicks = std::vector<std::pair<std::string, int>>;
        QTest::addColumn<bool>("withLog");
        QTest::addColumn<Clicks>("clicks");
        const Clicks toClock{{"back", 0}, {"next", 1}, {"next", 2}, {"next", 3}, {"next", 3}};
        const auto row = [&](const char *name, Clicks more, bool withLog = true) {
            Clicks clicks = withLog ? toClock : Clicks{{"next", 1}, {"next", 2}};
            clicks.insert(clicks.end(), more.begin(), more.end());
            QTest::newRow(name) << withLog << clicks;
        };
        row("by map",
            {{"map", 4}, {"next", 7}, {"next", 7}, {"back", 4}, {"back", 3}, {"back", 2}});
        row("by latitude and longitude", {{"latlon", 5}, {"next", 7}, {"back", 5}, {"back", 3}});
        row("by a known offset", {{"known", 6}, {"next", 7}, {"back", 6}, {"back", 3}});
        row("the clock was right", {{"right", 7}, {"back", 3}, {"step4", 3}, {"step5", 7}});
        row("the way chosen last", {{"latlon", 5},
                                    {"back", 3},
                                    {"known", 6},
                                    {"next", 7},
                                    {"back", 6},
                                    {"step5", 7},
                                    {"step4", 6}});
        row("none chosen any more",
            {{"latlon", 5}, {"step2", 2}, {"step4", 2}, {"next", 3}, {"right", 7}, {"back", 3}});
        row("without a log",
            {{"step5", 2},
             {"next", 4},
             {"next", 7},
             {"back", 4},
             {"log", 2},
             {"next", 4},
             {"back", 3},
             {"back", 2}},
            false);
    }
    void wayThroughThePages() {
        using Clicks = std::vector<std::pair<std::string, int>>;
        QFETCH(bool, withLog);
        QFETCH(Clicks, clicks);
        Desk desk;
        desk.start();
        if (withLog) {
            desk.addPoint("2026-05-08T10:00:00Z", "47.5", "8.5");
        }
        WizardOutlets &wizard = desk.parts().wizardOutlets;
        for (const auto &[button, page] : clicks) {
            press(desk, button);
            QCOMPARE(wizard.wizardTabs.selectedIdentifier.get(), std::to_string(page));
            QCOMPARE(wizard.webView2.visible.get(), page > 3);
            QCOMPARE(wizard.theImageView2.visible.get(), page > 3);
            QVERIFY(allAre(desk.parts().wizardDetails, page > 3));
            QCOMPARE(wizard.nextButton.visible.get(), page != 7);
            QCOMPARE(std::count_if(wizard.steps.begin(), wizard.steps.end(),
                                   [](const WizardStep &step) { return step.current.get(); }),
                     1);
        }
    }

    void detailsFollowThePhoto() {
        Desk desk;
        desk.start();
        image &one = desk.addPhoto("lake", "2026:05:08 10:00:00", "47.5", "8.5");
        image &other = desk.addPhoto("hut", "2026:05:08 11:00:00");
        WizardDetails &details = desk.parts().wizardDetails;
        const auto told = [&] {
            desk.endTurn();
            return QString::fromStdString(
                details.pictureData2.text.get() + "|" + details.time2.text.get() + "|" +
                details.latitude2.text.get() + "|" + details.longitude2.text.get());
        };
        QCOMPARE(told(), QStringLiteral("|||"));
        desk.select({&one});
        QCOMPARE(told(), QStringLiteral("lake|8 May 2026 10:00:00|47.5|8.5"));
        one.setImage_name("shore");
        one.setLat("47.25");
        QCOMPARE(told(), QStringLiteral("shore|8 May 2026 10:00:00|47.25|8.5"));
        desk.select({&one, &other});
        QCOMPARE(told(), QStringLiteral("2 photos|||"));
        desk.addPoint("2026-05-08T10:00:00Z", "47.5", "8.5");
        desk.select({&one});
        desk.endTurn();
        QCOMPARE(details.tiemWithOffset2.text.get(), std::string("8 May 2026 10:00:00"));
    }

    void savesWhenThereIsSomethingToSave() {
        Desk desk;
        desk.start();
        const Button &save = desk.parts().matching.nextButtonAppliedAll;
        const auto offered = [&] {
            desk.endTurn();
            return save.enabled.get();
        };
        QVERIFY(!offered());
        desk.addPhoto("lake", "2026:05:08 10:00:00");
        QVERIFY(offered()); // there is no log to be applied
        desk.addPoint("2026-05-08T10:00:00Z", "47.5", "8.5");
        QVERIFY(!offered());
        QVERIFY(!desk.parts().matching.congrats1.visible.get());
        desk.parts().matcher.applyToAllPictures();
        QVERIFY(offered());
        QVERIFY(desk.parts().matching.congrats1.visible.get());
        QVERIFY(desk.parts().matching.congrats2.visible.get());
        desk.addPhoto("hut", "2026:05:08 10:00:00"); // has no place yet
        QVERIFY(offered());
        QVERIFY(!desk.parts().matching.congrats1.visible.get());
        desk.parts().saveOutlets.savePhotosButton.enabled.set(false);
        QVERIFY(!offered());
    }
};

QTEST_MAIN(WizardTest)
#include "wizard_test.moc"
