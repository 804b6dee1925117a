#include "shell/desk.h"

#include <QTemporaryDir>
#include <QTest>

#include <fstream>

using namespace pinmora;

namespace {

/// The commands that a page gets which is attached only now.
std::vector<std::string> keptCommands(MapView &view) {
    std::vector<std::string> kept;
    view.attach([&kept](const MapView::Command &command) {
        if (const auto *request = std::get_if<PageRequest>(&command)) {
            kept.push_back("load " + request->address + (request->ignoresCache ? " anew " : " ") +
                           std::to_string(request->timeout.count()));
        } else if (const auto *name = std::get_if<MapView::PublishedName>(&command)) {
            kept.push_back("publish " + name->name);
        } else {
            kept.push_back(std::get<MapView::Script>(command).text);
        }
    });
    return kept;
}

} // namespace

class DelegateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void startsWithTheMainWindow() {
        Desk desk;
        desk.start();
        QVERIFY(desk.interface().window.visible.get());
        QVERIFY(!desk.interface().wizardWindow.visible.get());
        QVERIFY(!desk.interface().inWizard);
        QCOMPARE(desk.delegate.defaults.text("versionCheck").value_or(""), std::string("0"));
        QVERIFY(!desk.context().hasChanges() || desk.context().count<offset>() == 1);
        QVERIFY(!desk.parts().undoCommands.undoItem.enabled.get());
        QVERIFY(!desk.interface().errors.errorWindow.isUp());
    }

    void mapPagesAreAskedForBeforeTheControllerIsPublished() {
        Desk desk;
        desk.delegate.defaults.setText("mapServer", "http://maps.test");
        desk.start();
        const std::vector<std::string> expected{
            "load http://maps.test/maps/index3.php?w=434&h=400 anew 60", "publish controlObj"};
        std::vector<std::string> kept = keptCommands(desk.interface().webView1);
        kept.resize(2);
        QCOMPARE(kept, expected);
        QCOMPARE(keptCommands(desk.interface().webView2), expected);
    }

    void setUpRunsOnce() {
        Desk desk;
        desk.start();
        desk.interface().window.close();
        desk.start();
        QCOMPARE(desk.context().count<offset>(), 1U);
        QVERIFY(!desk.interface().window.visible.get());
    }

    void settingsReachTheReaders() {
        Desk desk;
        desk.delegate.defaults.setText("logReading", "tolerant");
        desk.delegate.defaults.setText("morePhotoTypes", "1");
        desk.start();
        QVERIFY(desk.parts().gps.reading() == LogReading::Tolerant);
        QVERIFY(desk.delegate.photoTypes.isPict("a.HEIC"));
    }

    void quitsAtOnceWithoutALibrary() {
        Desk desk;
        QVERIFY(desk.delegate.applicationShouldTerminate() == TerminateReply::Now);
    }

    void quitsWithoutAWordWhenNoPhotoHasChanges() {
        Desk desk;
        desk.start();
        QVERIFY(desk.delegate.applicationShouldTerminate() == TerminateReply::Now);
        desk.addPhoto("a", "2026:05:08 10:00:00");
        QVERIFY(desk.context().hasChanges());
        QVERIFY(desk.delegate.applicationShouldTerminate() == TerminateReply::Now);
        QVERIFY(!desk.parts().quitWarning.quitWarning.isUp());
    }

    void warnsOnceOfChangedPhotos() {
        Desk desk;
        desk.start();
        desk.addPhoto("a", "2026:05:08 10:00:00");
        desk.addPhoto("b", "2026:05:08 10:00:00").setCity("Zug");
        QVERIFY(desk.delegate.applicationShouldTerminate() == TerminateReply::Cancel);
        QCOMPARE(desk.parts().quitWarning.quitWarning.host().get(), &desk.interface().window);
        desk.parts().quitWarning.cancelButton.press();
        QVERIFY(!desk.parts().quitWarning.quitWarning.isUp());
        QVERIFY(desk.delegate.applicationShouldTerminate() == TerminateReply::Now);
    }

    void refusesToQuitOnUnfitText() {
        Desk desk;
        desk.start();
        desk.select({&desk.addPhoto("a", "2026:05:08 10:00:00")});
        desk.parts().coordinates.lat.d.text.set("200");
        QVERIFY(desk.delegate.applicationShouldTerminate() == TerminateReply::Cancel);
        QVERIFY(!desk.parts().quitWarning.quitWarning.isUp());
    }

    void quitWarningActs() {
        Desk desk;
        desk.start();
        desk.addPhoto("b", "2026:05:08 10:00:00").setCity("Zug");
        int quits = 0;
        const Connection counting = desk.delegate.terminate.connect([&] { ++quits; });
        QuitWarning &warning = desk.parts().quitWarning;

        warning.openQuitWarning();
        warning.saveAndQuitButton.press();
        QVERIFY(!warning.quitWarning.isUp());
        QVERIFY(desk.parts().missingOutlets.pictErrorWindow.isUp()); // before it saves
        desk.parts().missingOutlets.closeErrorButton.press();

        warning.openQuitWarning();
        warning.saveDataButton.press();
        QVERIFY(!warning.quitWarning.isUp() && !desk.context().hasChanges());
        QCOMPARE(quits, 0);

        warning.openQuitWarning();
        warning.noSaveButton.press();
        QVERIFY(!warning.quitWarning.isUp());
        QCOMPARE(quits, 1);
    }

    void unsavedWorkIsOfferedUntilItIsAnswered_data() {
        QTest::addColumn<bool>("refused");       // by quitting without saving
        QTest::addColumn<QList<int>>("choices"); // on the bar of the next start
        QTest::addColumn<bool>("offered");       // at the start after it
        using Choices = QList<int>;
        QTest::newRow("left behind") << false << Choices{} << true;
        QTest::newRow("quit without saving") << true << Choices{} << false;
        QTest::newRow("discarded") << false << Choices{1} << false;
        QTest::newRow("discarded and kept") << false << Choices{1, 0} << true;
    }

    void unsavedWorkIsOfferedUntilItIsAnswered() {
        QFETCH(bool, refused);
        QFETCH(QList<int>, choices);
        {
            Desk desk;
            desk.start();
            desk.addPhoto("b", "2026:05:08 10:00:00").setCity("Zug");
            desk.endTurn();
            if (refused) {
                desk.parts().quitWarning.noSaveAndQuit();
            }
        }
        {
            Desk next;
            next.start();
            QCOMPARE(next.interface().quietBar.message().has_value(), !refused);
            for (const int choice : choices) {
                next.interface().quietBar.choose(static_cast<std::size_t>(choice));
            }
        }
        Desk last;
        last.start();
        const bool offered = last.interface().quietBar.message().has_value();
        QTEST(offered, "offered");
        if (offered) {
            last.interface().quietBar.choose(0);
            QCOMPARE(last.context().count<image>(), 1U);
            QVERIFY(last.delegate.applicationShouldTerminate() == TerminateReply::Cancel);
        }
    }

    void theClockGoesOnAfterWorkIsBroughtBack() {
        {
            Desk desk;
            desk.start();
            desk.addPhoto("b", "2026:05:08 10:00:00");
            desk.parts().matching.offsetObj.content()->setHours(2);
            desk.endTurn();
        }
        Desk next;
        next.start();
        next.interface().quietBar.choose(0);
        next.endTurn();
        const auto hours = [&] {
            const offset *const inForce = next.parts().matching.offsetObj.content();
            return inForce ? inForce->hours().value_or(0) : -1;
        };
        QCOMPARE(hours(), 2);
        next.parts().undoCommands.undoItem.press();
        next.endTurn();
        QCOMPARE(hours(), 0);
    }

    void readsTheSystemsVersion_data() {
        QTest::addColumn<QByteArray>("version");
        QTest::addColumn<int>("minor");
        QTest::newRow("three parts") << QByteArray("10.4.11") << 4;
        QTest::newRow("two parts") << QByteArray("10.6") << 6;
        QTest::newRow("one part") << QByteArray("10") << 0;
        QTest::newRow("another system") << QByteArray("11.5") << 0;
        QTest::newRow("empty") << QByteArray("") << 0;
    }

    void readsTheSystemsVersion() {
        QFETCH(QByteArray, version);
        const QTemporaryDir folder;
        const std::string path = folder.filePath(QStringLiteral("version.plist")).toStdString();
        std::ofstream(path) << "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>"
                               "<key>ProductVersion</key><string>"
                            << version.constData() << "</string></dict></plist>";
        QTEST(getOSVersion(path), "minor");
        QCOMPARE(getOSVersion(path + "gone"), 0);
    }
};

QTEST_MAIN(DelegateTest)
#include "delegate_test.moc"
