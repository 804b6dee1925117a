#include "outlets/error_sheet.h"
#include "outlets/progress_sheet.h"

#include <QElapsedTimer>
#include <QTest>

using namespace pinmora;

class SheetsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void signalsSurviveHandlersThatComeAndGo() {
        Signal<int> signal;
        QString heard;
        Connection second;
        Connection third;
        const Connection first = signal.connect([&](int value) {
            heard += QString::number(value);
            second = {};                                         // not called any more
            third = signal.connect([&](int) { heard += u'+'; }); // called from the next time on
        });
        second = signal.connect([&](int) { heard += u'2'; });
        signal.emit(1);
        QCOMPARE(heard, QStringLiteral("1"));
        signal.emit(5);
        QCOMPARE(heard, QStringLiteral("15"));
    }

    void aDisabledButtonDoesNothing() {
        Button button;
        int presses = 0;
        const Connection connection = button.pressed.connect([&] { ++presses; });
        button.enabled.set(false);
        button.press();
        button.enabled.set(true);
        button.press();
        QCOMPARE(presses, 1);
    }

    void smallStepsAreDrawnNowAndThenAndAtTheEnd() {
        Window window;
        ProgressSheet sheet([&]() -> Window & { return window; });
        sheet.showProgressWindow("Applying", "", 5'000);
        int texts = 0;
        int draws = 0;
        double drawnAt = 0;
        const Connection text = sheet.progressTextSub.text.onChange([&](const auto &) { ++texts; });
        const Connection draw = sheet.progressWindow.displayed.connect([&] {
            ++draws;
            drawnAt = sheet.progressIndic.value.get();
        });
        QElapsedTimer timer;
        timer.start();
        for (int i = 1; i <= 5'000; ++i) {
            sheet.advance(std::to_string(i));
        }
        QVERIFY(draws <= 2 + timer.elapsed() * 30 / 1000 + 1);
        QCOMPARE(texts, 5'000);
        QCOMPARE(drawnAt, 5'000);
    }

    void sheetsHangFromTheWindowOfTheMoment() {
        Window main;
        Window wizard;
        bool inWizard = false;
        ErrorSheet sheet([&]() -> Window & { return inWizard ? wizard : main; });
        QStringList messages;
        const Connection connection = sheet.opened.connect(
            [&] { messages << QString::fromStdString(sheet.errorText.text.get()); });
        sheet.present("Error!", "one");
        QVERIFY(sheet.errorWindow.host().get() == &main);
        sheet.present("Error!", "one"); // the same again is a message again
        sheet.errorWindowClose();
        inWizard = true;
        sheet.present("Error!", "two");
        QVERIFY(sheet.errorWindow.host().get() == &wizard);
        QCOMPARE(messages.join(u' '), QStringLiteral("one one two"));
    }
};

QTEST_APPLESS_MAIN(SheetsTest)
#include "sheets_test.moc"
