#include "shell/preview.h"

#include <QElapsedTimer>
#include <QTest>

#include <memory>

#include "platform/tagged_photo.h"

using namespace pinmora;

namespace {

const Tags turned{{"Exif.Image.Orientation", "6"}};

QByteArray described(const Picture &picture) {
    return picture ? pinmora::described(*picture) : QByteArray("none");
}

} // namespace

/// The pictures in the four views.
class PreviewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        outlets_ = std::make_unique<PreviewOutlets>();
        preview_ = std::make_unique<Preview>(*outlets_, PixelSize{300, 300});
    }
    void cleanup() {
        preview_.reset();
        outlets_.reset();
    }

    void picture_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<Tags>("tags");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char *name, const QImage &image, const Tags &tags,
                            const char *expected) {
            QTest::newRow(name) << QByteArray::fromStdString(encoded(image, "jpg")) << tags
                                << QByteArray(expected);
        };
        Tags flat{{"Exif.Image.XResolution", "300/1"}, {"Exif.Image.YResolution", "150/1"}};
        row("nothing stated", quarters(60, 40), {}, "60x40 RGBW");
        row("pixels not square, how it lies unknown", quarters(60, 40), flat, "60x40 RGBW");
        row("lies on its side", quarters(60, 40), turned, "40x60 BRWG");
        flat.push_back(turned[0]);
        row("pixels not square", quarters(60, 40), flat, "80x60 BRWG");
        Tags placed = southEast;
        placed.push_back(turned[0]);
        placed.emplace_back("Iptc.Application2.City", "Sydney");
        row("has a position already", quarters(60, 40), placed, "40x60 BRWG");
        row("larger than the screen", quarters(3000, 1500), turned, "150x300 BRWG");
        row("larger, and not square", quarters(600, 600), flat, "300x150 BRWG");
    }

    void picture() {
        QFETCH(QByteArray, bytes);
        QFETCH(Tags, tags);
        preview_->dealWithPict(folder_.photo(bytes.toStdString(), tags));
        QVERIFY(preview_->loading.get());
        QTRY_VERIFY(!preview_->loading.get());
        const Picture shown = outlets_->theImageView.image.get();
        QTEST(described(shown), "expected");
        QVERIFY(outlets_->theImageView1.image.get() == shown);
        QVERIFY(outlets_->theImageView2.image.get() == shown);
        QVERIFY(outlets_->theImageViewLarge.image.get() == shown);
    }

    void builtInPictures() {
        const auto text = folder_.write("text.jpg", "no picture");
        const Picture absent = shownOf(text.parent_path() / "absent.jpg");
        const Picture broken = shownOf(text);
        QVERIFY(absent && broken && *absent != *broken);
        QVERIFY(*shownOf(text.parent_path()) == *broken);
        QVERIFY(*shownOf("") == *absent);
        preview_->noPict();
        QVERIFY(!outlets_->theImageView.image.get() && !outlets_->theImageViewLarge.image.get());
    }

    void lastOneCounts() {
        std::vector<QByteArray> shown;
        const Connection watch = outlets_->theImageView2.image.onChange(
            [&](const Picture &picture) { shown.push_back(described(picture)); });
        for (int width = 20; width <= 200; width += 20) {
            const std::string name = std::to_string(width) + ".png";
            preview_->dealWithPict(folder_.write(name, encoded(quarters(width, 40), "png")));
        }
        QTRY_VERIFY(!preview_->loading.get());
        QCOMPARE(shown, std::vector<QByteArray>{"200x40 RGBW"});

        preview_->dealWithPict(folder_.photo(turned));
        preview_->noPict();
        QVERIFY(!preview_->loading.get());
        preview_->waitForPicture();
        QCOMPARE(described(outlets_->theImageView2.image.get()), "none");
    }

    void fullSizeWhileItIsWanted() {
        const auto file = folder_.photo(encoded(quarters(1200, 900), "jpg"), turned);
        QCOMPARE(described(shownOf(file)), "225x300 BRWG");
        preview_->showFullSize(true);
        QCOMPARE(described(outlets_->theImageViewLarge.image.get()), "225x300 BRWG"); // until then
        QTRY_VERIFY(!preview_->loading.get());
        QCOMPARE(described(outlets_->theImageViewLarge.image.get()), "900x1200 BRWG");
        preview_->showFullSize(false);
        preview_->waitForPicture();
        QCOMPARE(described(outlets_->theImageViewLarge.image.get()), "225x300 BRWG");
    }

    void anotherPhotoIsNotLeftStanding() {
        const auto slow = folder_.write("slow.png", encoded(quarters(8'000, 6'000), "png"));
        QVERIFY(shownOf(folder_.photo(turned)));
        std::vector<QByteArray> shown;
        const Connection watch = outlets_->theImageView.image.onChange(
            [&](const Picture &picture) { shown.push_back(described(picture)); });
        QElapsedTimer timer;
        timer.start();
        preview_->dealWithPict(slow);
        QTRY_VERIFY_WITH_TIMEOUT(!preview_->loading.get(), 30'000);
        QVERIFY(!shown.empty());
        QCOMPARE(shown.back(), QByteArray("300x225 RGBW"));
        constexpr int longWait = 400; // ms; a fast computer keeps nobody waiting
        QVERIFY(timer.elapsed() < longWait || shown.front() == "none");
    }

    void mayGoAtAnyTime() {
        const auto file = folder_.photo(encoded(quarters(600, 400), "jpg"), turned);
        for (int i = 0; i < 20; ++i) {
            preview_->dealWithPict(file);
            if (i % 2 == 0) {
                QCoreApplication::processEvents();
            }
            preview_ = std::make_unique<Preview>(*outlets_, PixelSize{300, 300});
        }
        QCoreApplication::processEvents();
        QVERIFY(shownOf(file));
    }

private:
    Picture shownOf(const std::filesystem::path &file) {
        preview_->dealWithPict(file);
        preview_->waitForPicture();
        return outlets_->theImageView.image.get();
    }

    PhotoFolder folder_;
    std::unique_ptr<PreviewOutlets> outlets_;
    std::unique_ptr<Preview> preview_;
};

QTEST_GUILESS_MAIN(PreviewTest)

#include "preview_test.moc"
