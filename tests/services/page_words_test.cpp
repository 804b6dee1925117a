#include "services/bundled_files.h"
#include "services/page_words.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

using namespace pinmora;

namespace {

/// Every text between arrows.
class Arrows : public QTranslator {
public:
    QString translate(const char *, const char *text, const char *, int) const override {
        return QStringLiteral("→\"%1\"←").arg(QString::fromUtf8(text));
    }
    bool isEmpty() const override { return false; }
};

QSet<QString> textsOfThePage() {
    const QRegularExpression said(QStringLiteral("\\bsay\\(\"([^\"]+)\""));
    const QRegularExpression standing(
        QStringLiteral("(?:aria-label|title|placeholder)=\"([^\"]+)\"|<title>([^<]+)<"));
    QSet<QString> texts;
    for (const auto &[name, content] : bundledMapFiles()) {
        const bool isPage = name == "index.html";
        if (!isPage && (!name.ends_with(".js") || name == "leaflet.js")) {
            continue;
        }
        auto found = (isPage ? standing : said).globalMatch(QString::fromStdString(content));
        while (found.hasNext()) {
            texts.insert(found.next().capturedTexts().constLast());
        }
    }
    return texts;
}

} // namespace

class PageWordsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void allTextsOfThePage() {
        QCOMPARE(pageWords(), "{}"); // it is written in English
        Arrows arrows;
        QVERIFY(QCoreApplication::installTranslator(&arrows));
        const QJsonObject words =
            QJsonDocument::fromJson(QByteArray::fromStdString(pageWords())).object();
        const QStringList known = words.keys();
        QCOMPARE(QSet<QString>(known.begin(), known.end()), textsOfThePage());
        QCOMPARE(words[QStringLiteral("Zoom in")].toString(), QStringLiteral("→\"Zoom in\"←"));
    }
};

QTEST_GUILESS_MAIN(PageWordsTest)
#include "page_words_test.moc"
