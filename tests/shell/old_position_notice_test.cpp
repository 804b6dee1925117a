#include "persistence/undo_group.h"
#include "shell/desk.h"

#include <QTest>

using namespace pinmora;

namespace {

constexpr const char *outing = PINMORA_SOURCE_DIR "/samples/outing/";

/// A library of photos at one place; the files of "a" and "b" have a position.
struct PlacedDesk : Desk {
    PlacedDesk() {
        start();
        for (const char *name : {"a", "b", "none", "gone"}) {
            const std::string_view it = name;
            image &photo = addPhoto(name, "2026:05:08 10:00:00", "47", "8");
            photo.setFull_file_path(
                it == "gone"
                    ? "/nowhere/gone.jpg"
                    : outing + std::string(it == "none" ? "IMG_0412.JPG" : "IMG_0371.JPG"));
        }
        endTurn();
    }

    image &photo(const QString &name) {
        for (image *one : context().records<image>()) {
            if (one->image_name().string() == name.toStdString()) {
                return *one;
            }
        }
        qFatal("no such photo");
    }
    /// As the marker button does it.
    void place(const QStringList &names, const char *lat, const char *lon) {
        const UndoGroup group(context(), "Marker");
        for (const QString &name : names) {
            photo(name).updateLatAndLon({lat, lon});
        }
    }
    QString said() {
        const auto &message = interface().quietBar.message();
        return message ? QString::fromStdString(message->text) : QString();
    }
    bool says(const QString &text) {
        return QTest::qWaitFor([&] { return said() == text; }, 20'000);
    }
    /// The message about both, which answers a question that is asked behind all others.
    bool saysBoth() {
        return says(QStringLiteral("The saved copies of 2 photos would still carry the positions "
                                   "that are in their files."));
    }
    QString ofOne(const char *name) {
        return QStringLiteral("The saved copy of %1 would still carry the position that is in its "
                              "file.")
            .arg(QString::fromUtf8(name));
    }
};

} // namespace

class OldPositionNoticeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { Desk::clear(); }

    void isOfPhotosWhoseFilesHaveOne() {
        PlacedDesk desk;
        desk.place({QStringLiteral("a"), QStringLiteral("none"), QStringLiteral("gone")}, "", "");
        QVERIFY(desk.says(desk.ofOne("a")));
        desk.place({QStringLiteral("b")}, "", "");
        QVERIFY(desk.saysBoth());
        QCOMPARE(desk.interface().quietBar.message()->choices.at(0).title,
                 std::string("Remove Them There"));
    }

    void isWithdrawnWhenThePositionIsThereAgain_data() {
        QTest::addColumn<QString>("how");
        for (const char *how : {"undo", "placed", "photo removed"}) {
            QTest::newRow(how) << QString::fromUtf8(how);
        }
    }

    void isWithdrawnWhenThePositionIsThereAgain() {
        QFETCH(QString, how);
        PlacedDesk desk;
        desk.place({QStringLiteral("b")}, "", "");
        desk.place({QStringLiteral("a")}, "", "");
        QVERIFY(desk.saysBoth());
        if (how == QStringLiteral("undo")) {
            desk.parts().undoCommands.undoItem.press();
        } else if (how == QStringLiteral("placed")) {
            desk.place({QStringLiteral("a")}, "1", "2");
        } else {
            desk.context().deleteObject(desk.photo(QStringLiteral("a")));
        }
        QVERIFY(desk.says(desk.ofOne("b")));
        desk.place({QStringLiteral("b")}, "1", "2");
        QVERIFY(desk.says({}));
    }

    void turnsTheSettingOn() {
        PlacedDesk desk;
        desk.place({QStringLiteral("a")}, "", "");
        QVERIFY(desk.says(desk.ofOne("a")));
        desk.interface().quietBar.choose(0);
        QCOMPARE(desk.delegate.defaults.text("removeOldPosition").value_or(""), std::string("1"));
        desk.place({QStringLiteral("b")}, "", "");
        desk.delegate.defaults.setText("removeOldPosition", "0");
        desk.place({QStringLiteral("a")}, "1", "2");
        desk.place({QStringLiteral("a")}, "", "");
        QVERIFY(desk.says(desk.ofOne("a"))); // and of b there was nothing to be said
    }

    void isNotOfWhatIsTakenBack() {
        PlacedDesk desk;
        desk.place({QStringLiteral("a")}, "", "");
        QVERIFY(desk.says(desk.ofOne("a")));
        desk.interface().quietBar.dismiss();
        desk.place({QStringLiteral("a")}, "1", "2");
        desk.parts().undoCommands.undoItem.press();
        desk.place({QStringLiteral("b")}, "", "");
        QVERIFY(desk.says(desk.ofOne("b")));
    }
};

QTEST_MAIN(OldPositionNoticeTest)
#include "old_position_notice_test.moc"
