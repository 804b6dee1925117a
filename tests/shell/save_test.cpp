#include "shell/save_desk.h"

#include <utility>

using namespace pinmora;
namespace fs = std::filesystem;

class SaveTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void tellsHowFarItIs();
    void runsEnd_data();
    void runsEnd();
    void anEmptyLibraryIsSavedAtOnce();
    void isNotOverBeforeItsSheetIsDrawn();
    void namesAreWaitedFor_data();
    void namesAreWaitedFor();
    void cancelling();
    void whatIsDoneMeanwhileIsKept_data();
    void whatIsDoneMeanwhileIsKept();
    void quitsAtTheEnd_data();
    void quitsAtTheEnd();
    void savesAgain();
    void endsWithTheProgram();
    void commandIsRefused_data();
    void commandIsRefused();
    void savesAnywayOnce();
    void remembersWhetherPositionsAreRemoved();
};

void SaveTest::tellsHowFarItIs() {
    SaveDesk desk(3);
    QList<double> values;
    desk.listening.push_back(
        desk.outlets().saveIndicator.value.onChange([&](double value) { values << value; }));
    QStringList changed;
    desk.listening.push_back(
        desk.desk().interface().workspace.fileSystemChanged.connect([&](const std::string &path) {
            changed << QString::fromStdString(fs::path(path).filename());
        }));
    desk.told.clear();
    desk.parts().savePipeline.updatePicts();
    const OpenPanel &chooser = desk.outlets().folderChooser;
    QVERIFY(chooser.canChooseDirectories && chooser.canCreateDirectories);
    QVERIFY(!chooser.canChooseFiles && chooser.directory.empty());
    desk.outlets().folderChooser.answer({desk.copies.string()});
    QVERIFY(desk.outlets().saveWindow.isUp());
    QVERIFY(!desk.outlets().savePhotosButton.enabled.get());
    desk.parts().savePipeline.updatePicts(); // one at a time
    QVERIFY(!desk.outlets().folderChooser.sheet().isUp());
    QVERIFY(desk.ends());
    QVERIFY(!desk.outlets().saveWindow.isUp());
    QVERIFY(desk.outlets().savePhotosButton.enabled.get());
    desk.told.removeIf([](const QString &text) { return text.startsWith(u"Writing"); });
    const QStringList expected{QStringLiteral("Copying files and adding data"),
                               QStringLiteral("1 of 3"), QStringLiteral("2 of 3"),
                               QStringLiteral("3 of 3"), QStringLiteral("Updating icons")};
    desk.told.removeAll(QString());
    QCOMPARE(desk.told, expected);
    QCOMPARE(values, (QList<double>{1, 2}));
    QCOMPARE(desk.outlets().saveIndicator.maximum.get(), 3.0);
    QCOMPARE(changed.join(u' '), QStringLiteral("IMG_101.jpg IMG_102.jpg IMG_103.jpg"));
}

void SaveTest::runsEnd_data() {
    QTest::addColumn<QString>("tool");
    QTest::addColumn<bool>("loses"); // the second original, once the photos have been checked
    QTest::addColumn<QString>("bar");
    QTest::addColumn<QString>("choices");
    QTest::addColumn<QString>("reason"); // that the second photo's row and the log give
    QTest::addColumn<bool>("offered");   // at the next start
    const auto row = [](const char *name, const char *tool, bool loses, const char *bar,
                        const char *choices, const char *reason, bool offered) {
        const auto text = [](const char *words) { return QString::fromUtf8(words); };
        QTest::newRow(name) << text(tool) << loses << text(bar) << text(choices) << text(reason)
                            << offered;
    };
    row("well", tags, false, "3 photos saved in copies. The copies got no position.", "Open Folder",
        "", false);
    row("tool fails", failsAtSecond, false,
        "2 of 3 saved. 1 could not be written. The copies got no position.", "Show|Open Folder",
        "Copied, but not tagged: Bad IFD", true);
    row("original is gone", tags, true,
        "2 of 3 saved. 1 was left out: its file is missing. The copies got no position.",
        "Open Folder", "", false);
}

void SaveTest::runsEnd() {
    QFETCH(QString, tool);
    QFETCH(bool, loses);
    QFETCH(QString, reason);
    QFETCH(bool, offered);
    SaveDesk desk(3, tool.toStdString());
    desk.parts().savePipeline.updatePicts();
    if (loses) {
        fs::remove(desk.originals / "IMG_102.jpg");
    }
    desk.outlets().folderChooser.answer({desk.copies.string()});
    QVERIFY(desk.ends());
    QTEST(desk.bar(), "bar");
    QStringList choices;
    const BarMessage message = *desk.message();
    for (const BarMessage::Choice &choice : message.choices) {
        choices << QString::fromStdString(choice.title);
    }
    QTEST(choices.join(u'|'), "choices");
    QVERIFY(desk.isStoreEmpty());
    const std::string *mark = desk.parts().saveMarks.reasonFor(*desk.photos().at(1));
    QCOMPARE(QString::fromStdString(mark ? *mark : ""), reason);
    QVERIFY(!desk.parts().saveMarks.reasonFor(*desk.photos().at(0)));
    const QString log = QString::fromStdString(desk.parts().log.text());
    QCOMPARE(log.contains(reason) && log.contains(u"originals/IMG_102.jpg"), !reason.isEmpty());
    desk.desk().interface().quietBar.choose(0);
    QCOMPARE(desk.parts().logWindow.visible.get(), !reason.isEmpty());
    QCOMPARE(desk.broughtBack().value_or(0), offered ? 3U : 0U);
}

void SaveTest::anEmptyLibraryIsSavedAtOnce() {
    SaveDesk desk(0);
    QVERIFY(desk.parts().savePipeline.isRunning() == false);
    QVERIFY(desk.desk().delegate.library.saveAction());
    QVERIFY(!desk.isStoreEmpty());
    QVERIFY(desk.save());
    QVERIFY(desk.isStoreEmpty());
    QVERIFY(desk.copyNames().empty());
    QVERIFY(desk.told.contains(QStringLiteral("Updating icons")));
    QVERIFY(!desk.broughtBack());
}

/// Drawing lets the event loop go on, and a run that copies nothing takes no time.
void SaveTest::isNotOverBeforeItsSheetIsDrawn() {
    SaveDesk desk(3);
    fs::remove_all(desk.copies);
    const SavePipeline &pipeline = desk.parts().savePipeline;
    bool isDrawn = false;
    desk.listening.push_back(desk.outlets().saveWindow.displayed.connect([&] {
        if (!std::exchange(isDrawn, true)) {
            static_cast<void>(QTest::qWaitFor([&] { return !pipeline.isRunning(); }, 200));
        }
    }));
    desk.confirm();
    QVERIFY(pipeline.isRunning());
    QVERIFY(desk.ends());
    QCOMPARE(desk.bar(), QStringLiteral("0 of 3 saved. 3 could not be written."));
    QCOMPARE(desk.desk().interface().statusLine.text.get(), std::string());
}

void SaveTest::namesAreWaitedFor_data() {
    QTest::addColumn<bool>("arrive");
    QTest::newRow("they arrive") << true;
    QTest::newRow("they never do") << false;
}

void SaveTest::namesAreWaitedFor() {
    QFETCH(bool, arrive);
    SaveDesk desk(1);
    desk.standInThatTells();
    desk.parts().savePipeline.setNamePatience(std::chrono::milliseconds(arrive ? 60'000 : 50));
    Observable<std::size_t> &awaited = desk.parts().placeNames.awaited;
    awaited.set(2);
    desk.confirm();
    QVERIFY(desk.outlets().saveWindow.isUp());
    QVERIFY(desk.outlets().saveIndicator.animating.get());
    QVERIFY(desk.outlets().saveIndicator.maximum.get() <= 0);
    QVERIFY(desk.told.contains(QStringLiteral("Waiting for place names: 2 to go")));
    QVERIFY(desk.desk().interface().saveFlags.firstQuit);
    if (arrive) {
        awaited.set(1);
        awaited.set(0); // while the answer is being written
        desk.photos().front()->setCity("Zug");
    }
    QVERIFY(desk.ends());
    QCOMPARE(desk.told.contains(QStringLiteral("Waiting for place names: 1 to go")), arrive);
    QCOMPARE(desk.toolWasTold().find("-City=Zug") != std::string::npos, arrive);
    awaited.set(7);
    QVERIFY(!desk.told.contains(QStringLiteral("Waiting for place names: 7 to go")));
    QVERIFY(!desk.desk().interface().saveFlags.firstQuit);
}

void SaveTest::cancelling() {
    SaveDesk desk(40);
    desk.parts().placeNames.awaited.set(1);
    desk.confirm();
    desk.outlets().cancelSaveButton.press();
    QVERIFY(desk.ends());
    QCOMPARE(desk.bar(), QStringLiteral("Cancelled: nothing was saved."));
    QVERIFY(desk.copyNames().empty());
    QVERIFY(desk.desk().interface().saveFlags.firstQuit);

    desk.parts().placeNames.awaited.set(0);
    desk.listening.push_back(desk.outlets().saveWindow.displayed.connect(
        [&] { desk.outlets().cancelSaveButton.press(); }));
    QVERIFY(desk.save());
    const std::size_t saved = desk.copyNames().size();
    QVERIFY(saved < 40);
    QCOMPARE(desk.bar(), QStringLiteral("Cancelled: %1 of 40 saved.").arg(saved));
    QVERIFY(desk.isStoreEmpty());
    QCOMPARE(desk.broughtBack().value_or(0), 40U);
}

void SaveTest::whatIsDoneMeanwhileIsKept_data() {
    QTest::addColumn<bool>("meanwhile");
    QTest::newRow("while tools run") << true;
    QTest::newRow("afterwards") << false;
}

void SaveTest::whatIsDoneMeanwhileIsKept() {
    QFETCH(bool, meanwhile);
    SaveDesk desk(3, std::string(waits) + failsAtSecond);
    const auto edit = [&] {
        desk.photos().back()->setComments("late");
        desk.desk().endTurn();
    };
    if (!meanwhile) {
        desk.release();
        desk.standIn(tags);
        QVERIFY(desk.save());
        edit();
    } else {
        desk.confirm();
        QVERIFY(desk.isWriting());
        QCOMPARE(QString::fromStdString(desk.desk().interface().statusLine.text.get()),
                 QStringLiteral("Writing positions: 0 of 3"));
        edit();
        desk.desk().context().deleteObject(*desk.photos().at(1)); // the tool fails at it
        desk.release();
        QVERIFY(desk.ends());
        QCOMPARE(desk.desk().interface().statusLine.text.get(), std::string());
    }
    const std::size_t photos = desk.photos().size();
    QVERIFY(desk.isStoreEmpty());
    QCOMPARE(desk.broughtBack().value_or(0), photos);
    QCOMPARE(desk.photos().back()->comments().string(), std::string("late"));
}

void SaveTest::quitsAtTheEnd_data() {
    QTest::addColumn<bool>("fails");
    QTest::newRow("all is written") << false;
    QTest::newRow("not all is written") << true;
}

void SaveTest::quitsAtTheEnd() {
    QFETCH(bool, fails);
    SaveDesk desk(3, std::string(waits) + (fails ? failsAtSecond : tags));
    desk.confirm();
    QVERIFY(desk.isWriting());
    QVERIFY(desk.desk().delegate.applicationShouldTerminate() == TerminateReply::Cancel);
    QVERIFY(!desk.parts().quitWarning.quitWarning.isUp());
    QCOMPARE(QString::fromStdString(desk.desk().interface().statusLine.text.get()),
             QStringLiteral("Pinmora quits when the copies are written: 0 of 3"));
    desk.release();
    QVERIFY(desk.ends());
    QCOMPARE(desk.quits, fails ? 0 : 1);
    QCOMPARE(desk.bar().endsWith(u"Pinmora has not quit."), fails);
    QVERIFY(desk.desk().delegate.applicationShouldTerminate() == TerminateReply::Now);
}

void SaveTest::savesAgain() {
    SaveDesk desk(2, failsAtSecond);
    QVERIFY(desk.save());
    const image &second = *desk.photos().back();
    QVERIFY(desk.parts().saveMarks.reasonFor(second));
    desk.standIn(tags);
    desk.confirm();
    QVERIFY(!desk.message());
    QVERIFY(!desk.parts().saveMarks.reasonFor(second));
    QVERIFY(desk.ends());
    QCOMPARE(desk.copyNames(), (std::set<std::string>{"IMG_101.jpg", "IMG_101_1.jpg", "IMG_102.jpg",
                                                      "IMG_102_1.jpg"}));
    QVERIFY(!desk.broughtBack()); // what the first run could not save is saved now
}

void SaveTest::endsWithTheProgram() {
    SaveDesk desk(5, std::string("sleep 0.1; ") + tags);
    desk.confirm();
    desk.program.reset();
    for (const std::string &name : desk.copyNames()) {
        QVERIFY(bytesOf(desk.copies / name) == bytesOf(desk.sample) + "tagged\n");
    }
    QCOMPARE(desk.broughtBack().value_or(0), 5U);
}

void SaveTest::commandIsRefused_data() {
    QTest::addColumn<bool>("hasTool");
    QTest::newRow("without a tool") << false;
    QTest::newRow("by unfit text") << true;
}

void SaveTest::commandIsRefused() {
    QFETCH(bool, hasTool);
    SaveDesk desk(1);
    const QByteArray path = qgetenv("PATH");
    if (hasTool) {
        desk.desk().select(desk.photos());
        desk.parts().coordinates.lat.d.text.set("200");
    } else {
        fs::remove(desk.resources / "exiftool");
        qputenv("PATH", "/nowhere");
    }
    desk.parts().savePipeline.updatePicts();
    qputenv("PATH", path);
    QVERIFY(!desk.outlets().folderChooser.sheet().isUp());
    const ErrorSheet &errors = desk.desk().interface().errors;
    QCOMPARE(errors.errorWindow.isUp(), !hasTool);
    QCOMPARE(errors.errorText.text.get() == toolMissingMessage(), !hasTool);
}

void SaveTest::savesAnywayOnce() {
    SaveDesk desk(3);
    fs::remove(desk.originals / "IMG_102.jpg");
    const SaveFlags &flags = desk.desk().interface().saveFlags;
    const Sheet &missing = desk.parts().missingOutlets.pictErrorWindow;
    const Sheet &chooser = desk.outlets().folderChooser.sheet();
    desk.parts().savePipeline.updatePicts();
    QVERIFY(missing.isUp() && !chooser.isUp());
    desk.parts().missingOutlets.saveAnyWayButton.press();
    QVERIFY(!missing.isUp() && chooser.isUp());
    desk.desk().interface().saveFlags.firstQuit = false;
    desk.outlets().folderChooser.answer({});
    QVERIFY(!chooser.isUp() && !flags.saveAnyWay);
    desk.parts().savePipeline.updatePicts();
    QVERIFY(missing.isUp() && !chooser.isUp());
    desk.parts().missingOutlets.saveAnyWayButton.press();
    desk.outlets().folderChooser.answer({desk.copies.string()});
    QVERIFY(desk.ends());
    QCOMPARE(desk.copyNames(), (std::set<std::string>{"IMG_101.jpg", "IMG_103.jpg"}));
    QVERIFY(!desk.broughtBack());
}

void SaveTest::remembersWhetherPositionsAreRemoved() {
    SaveDesk desk(1);
    desk.standInThatTells();
    for (const bool on : {false, true}) {
        CheckBox &box = desk.outlets().folderChooser.accessory;
        desk.parts().savePipeline.updatePicts();
        QVERIFY(box.visible.get() && !box.on.get());
        box.on.set(on);
        desk.outlets().folderChooser.answer({desk.copies.string()});
        QVERIFY(desk.ends());
        QCOMPARE(desk.toolWasTold().find("-GPS:all=") != std::string::npos, on);
    }
    desk.restart();
    desk.parts().savePipeline.updatePicts();
    QVERIFY(desk.outlets().folderChooser.accessory.on.get());
}

QTEST_MAIN(SaveTest)
#include "save_test.moc"
