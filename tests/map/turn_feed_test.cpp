#include "map/turn_feed.h"

#include <QTest>

#include <optional>

using namespace pinmora;
using namespace std::chrono_literals;

namespace {

/// Both views and what their pages have been told.
struct TurnDesk {
    MapView webView1;
    MapView webView2;
    bool inWizard = false;
    int asked = 0;
    std::vector<std::string> told1;
    std::vector<std::string> told2;
    std::optional<TurnFeed> feed;

    TurnDesk() {
        listen(webView1, told1);
        listen(webView2, told2);
        feed.emplace(
            TurnFeed::Outlets{.webView1 = webView1, .webView2 = webView2, .inWizard = inWizard},
            [this] {
                ++asked;
                return std::vector{Date(1212345678s), Date(1212345700s)};
            });
    }

private:
    static void listen(MapView &view, std::vector<std::string> &told) {
        view.attach([&told](const MapView::Command &command) {
            told.push_back(std::get<MapView::Feed>(command).json);
        });
    }
};

const std::string atTwo =
    R"({"kind":"turn","by":2,"times":[1212352878,1212352900]})"; // two hours east
const std::string end = R"({"kind":"turn","by":null})";

std::string turnBy(int seconds) {
    return R"({"kind":"turn","by":)" + std::to_string(seconds) + "}";
}

} // namespace

class TurnFeedTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("TZ", "UTC-2"); }

    /// The times once, then only the newest turn.
    void aTurnIsFollowed() {
        TurnDesk desk;
        desk.feed->turned({});
        QVERIFY(desk.told1.empty());
        for (const int seconds : {2, 3, 4, 5}) {
            desk.feed->turned(std::chrono::seconds(seconds));
        }
        QCOMPARE(desk.told1, std::vector{atTwo});
        QTRY_COMPARE(desk.told1, (std::vector{atTwo, turnBy(5)}));
        desk.feed->turned(6s);
        desk.feed->turned({});
        QCOMPARE(desk.told1, (std::vector{atTwo, turnBy(5), end}));
        QVERIFY(desk.told2.empty());
        QCOMPARE(desk.asked, 1);
        // What was due at the end of one turn is not said in the next.
        desk.feed->turned(7s);
        QTRY_COMPARE(desk.told1.size(), std::size_t(4));
        QVERIFY(desk.told1[3].find("\"times\"") != std::string::npos);
        QCOMPARE(desk.asked, 2);
    }

    void onlyTheMapThatIsSeen() {
        TurnDesk desk;
        desk.inWizard = true;
        desk.webView2.visible.set(false);
        desk.feed->turned(2s);
        QVERIFY(desk.told1.empty() && desk.told2.empty());
        desk.feed->turned({});
        QVERIFY(desk.told1.empty() && desk.told2.empty());
        desk.webView2.visible.set(true);
        desk.feed->turned(2s);
        QTRY_COMPARE(desk.told2, std::vector{atTwo});
        QVERIFY(desk.told1.empty());
    }

    /// Such a one has forgotten what the former page was told.
    void aPageThatComesWithinTheTurn() {
        TurnDesk desk;
        desk.feed->turned(1s);
        desk.webView1.loaded.emit();
        desk.feed->turned(2s);
        QTRY_COMPARE(desk.told1.size(), std::size_t(2));
        QCOMPARE(desk.told1[1], atTwo);
    }
};

QTEST_GUILESS_MAIN(TurnFeedTest)
#include "turn_feed_test.moc"
