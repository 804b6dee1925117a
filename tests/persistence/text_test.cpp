#include "persistence/text.h"

#include <QtTest>

using pinmora::Text;

class TextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsEveryLengthThroughCopyAndMove() {
        for (std::size_t length = 0; length < 60; ++length) {
            std::string expected;
            for (std::size_t i = 0; i < length; ++i) {
                expected += static_cast<char>('a' + i % 26);
            }
            const Text text(expected);
            QVERIFY(text.hasValue());
            QVERIFY(text == std::string_view(expected));

            const Text copy = text;
            Text source = text;
            const Text moved = std::move(source);
            QVERIFY(copy == text && moved == text);
            QCOMPARE(text.string(), expected);
        }
        QVERIFY(Text(std::string_view("a\0b", 3)).view().size() == 3);
    }

    void assignsOverWhateverWasThere() {
        const std::string lengthy(100, 'x');
        for (const Text &before : {Text(), Text("short"), Text(lengthy)}) {
            for (const Text &after : {Text(), Text("47.5"), Text(lengthy + "y")}) {
                Text text = before;
                text = after;
                QVERIFY(text == after);
                Text &same = text;
                text = same;
                QVERIFY(text == after);
                text = std::move(same);
                QVERIFY(text == after);
            }
        }
    }
};

QTEST_APPLESS_MAIN(TextTest)
#include "text_test.moc"
