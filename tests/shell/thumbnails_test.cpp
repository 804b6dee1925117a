#include "shell/thumbnails.h"

#include <QTest>

#include <algorithm>
#include <fstream>

#include "platform/tagged_photo.h"

using namespace pinmora;

namespace {

const Tags turned{{"Exif.Image.Orientation", "6"}};

/// Gives a photo a white thumbnail with black bars above and below.
void addThumbnail(const std::filesystem::path &file, QSize size, int bar) {
    QImage thumbnail(size, QImage::Format_RGB32);
    thumbnail.fill(Qt::black);
    QPainter(&thumbnail).fillRect(0, bar, size.width(), size.height() - 2 * bar, Qt::white);
    const std::string bytes = encoded(thumbnail, "jpg");
    const auto image = Exiv2::ImageFactory::open(file.string());
    image->readMetadata();
    Exiv2::ExifThumb(image->exifData())
        .setJpegThumbnail(reinterpret_cast<const Exiv2::byte *>(bytes.data()),
                          static_cast<long>(bytes.size()));
    image->writeMetadata();
}

} // namespace

/// Small pictures for the photo table.
class ThumbnailsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { ready_.clear(); }

    void picture_data() {
        QTest::addColumn<QSize>("photo");
        QTest::addColumn<QSize>("thumbnail");
        QTest::addColumn<int>("bar");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char *name, QSize photo, QSize thumbnail, int bar,
                            const char *expected) {
            QTest::newRow(name) << photo << thumbnail << bar << QByteArray(expected);
        };
        row("none in the file", {600, 400}, {}, 0, "107x160 BRWG");
        row("a small photo stays small", {60, 40}, {}, 0, "40x60 BRWG");
        row("in the file", {640, 480}, {160, 120}, 0, "120x160 WWWW");
        row("in the file, with bars", {600, 400}, {160, 120}, 7, "107x160 WWWW");
        row("in the file, larger", {640, 480}, {320, 240}, 0, "120x160 WWWW");
        row("too small", {640, 480}, {80, 60}, 0, "120x160 BRWG");
        row("of another shape than the photo", {400, 600}, {160, 120}, 0, "160x107 BRWG");
    }

    void picture() {
        QFETCH(QSize, photo);
        QFETCH(QSize, thumbnail);
        QFETCH(int, bar);
        const auto file =
            folder_.photo(encoded(quarters(photo.width(), photo.height()), "jpg"), turned);
        if (!thumbnail.isEmpty()) {
            addThumbnail(file, thumbnail, bar);
        }
        Thumbnails thumbnails;
        const Connection watch = watchReady(thumbnails);
        QVERIFY(!thumbnails.thumbnail(file));
        QVERIFY(!thumbnails.thumbnail(file)); // while it is being made
        QTRY_COMPARE(ready_.size(), std::size_t{1});
        QCOMPARE(ready_[0], file.string());
        const Picture made = thumbnails.thumbnail(file);
        QVERIFY(made);
        QTEST(described(*made), "expected");
        QVERIFY(thumbnails.thumbnail(file) == made);
        QCOMPARE(ready_.size(), std::size_t{1});
    }

    void newestFirstAndNothingForOthers() {
        Thumbnails thumbnails;
        const Connection watch = watchReady(thumbnails);
        const auto files = writeMany(5);
        for (const std::string &file : files) {
            thumbnails.thumbnail(file);
            thumbnails.thumbnail(folder_.write("text.jpg", "no picture"));
        }
        QTRY_COMPARE(ready_.size(), files.size());
        const std::vector<std::string> expected{files[0], files[4], files[3], files[2], files[1]};
        QCOMPARE(ready_, expected);
        QVERIFY(!thumbnails.thumbnail(folder_.write("text.jpg", "no picture")));
    }

    void manyAreForgotten() {
        // Three of 160 by 80 pixels, and what is kept beside them.
        Thumbnails thumbnails(160, 3 * 160 * 80 * 4 + 5000);
        const Connection watch = watchReady(thumbnails);
        const auto files = writeMany(4);
        const auto make = [&](const std::string &file) {
            const std::size_t before = ready_.size();
            thumbnails.thumbnail(file);
            QTRY_COMPARE(ready_.size(), before + 1);
        };
        for (int i = 0; i < 3; ++i) {
            make(files[static_cast<std::size_t>(i)]);
        }
        QVERIFY(thumbnails.thumbnail(files[0])); // looked at last
        make(files[3]);
        QVERIFY(thumbnails.thumbnail(files[0]) && thumbnails.thumbnail(files[2]) &&
                thumbnails.thumbnail(files[3]));
        QVERIFY(!thumbnails.thumbnail(files[1]));
        QTRY_VERIFY(thumbnails.thumbnail(files[1])); // and it is made again
    }

    void longListScrolledFast() {
        Thumbnails thumbnails;
        const Connection watch = watchReady(thumbnails);
        const auto files = writeMany(300);
        for (const std::string &file : files) {
            thumbnails.thumbnail(file);
        }
        QTRY_VERIFY(thumbnails.thumbnail(files[101]));
        QVERIFY(std::find(ready_.begin(), ready_.end(), files[50]) == ready_.end());
        QTRY_VERIFY(thumbnails.thumbnail(files[50]));
    }

    void anotherFileIsNoticed() {
        Thumbnails thumbnails(160, 1U << 20U, std::chrono::milliseconds(0));
        const Connection watch = watchReady(thumbnails);
        const auto file = folder_.write("card.jpg", "not there yet");
        const auto shown = [&] {
            const Picture picture = thumbnails.thumbnail(file);
            return picture ? described(*picture) : QByteArray("none");
        };
        std::filesystem::remove(file);
        QCOMPARE(shown(), QByteArray("none"));
        folder_.write("card.jpg", encoded(quarters(320, 160), "jpg"));
        QTRY_COMPARE(shown(), QByteArray("160x80 RGBW"));
        QVERIFY(!ready_.empty());
        folder_.write("card.jpg", encoded(quarters(160, 320), "jpg"));
        QTRY_COMPARE(shown(), QByteArray("80x160 RGBW"));
        ready_.clear();
        folder_.write("card.jpg", "no picture");
        QTRY_COMPARE(shown(), QByteArray("none"));
        QVERIFY(!ready_.empty());
    }

    void filesAtRestAreNotLookedAt_data() {
        QTest::addColumn<int>("restTime"); // minutes
        QTest::addColumn<bool>("isGone");
        QTest::newRow("not asked for long enough ago") << 60 << false;
        QTest::newRow("gone") << 0 << true;
    }

    void filesAtRestAreNotLookedAt() {
        QFETCH(int, restTime);
        QFETCH(bool, isGone);
        Thumbnails thumbnails(160, 1U << 20U, std::chrono::minutes(restTime));
        const auto files = writeMany(2);
        QTRY_VERIFY(thumbnails.thumbnail(files[0]));
        const Picture before = thumbnails.thumbnail(files[0]);
        if (isGone) {
            std::filesystem::remove(files[0]);
        } else {
            std::ofstream(files[0]) << "no picture";
        }
        thumbnails.thumbnail(files[0]);
        QTRY_VERIFY(thumbnails.thumbnail(files[1])); // the work before has been done
        QVERIFY(thumbnails.thumbnail(files[0]) == before);
    }

    void mayGoAtAnyTime() {
        const auto files = writeMany(6);
        for (int i = 0; i < 20; ++i) {
            Thumbnails thumbnails;
            for (const std::string &file : files) {
                thumbnails.thumbnail(file);
            }
            if (i % 2 == 0) {
                QCoreApplication::processEvents();
            }
        }
    }

private:
    Connection watchReady(Thumbnails &thumbnails) {
        return thumbnails.ready.connect(
            [this](const std::string &path) { ready_.push_back(path); });
    }
    std::vector<std::string> writeMany(int count) const {
        std::vector<std::string> files;
        for (int i = 0; i < count; ++i) {
            files.push_back(
                folder_.write(std::to_string(i) + ".jpg", encoded(quarters(320, 160), "jpg")));
        }
        return files;
    }

    PhotoFolder folder_;
    std::vector<std::string> ready_;
};

QTEST_GUILESS_MAIN(ThumbnailsTest)

#include "thumbnails_test.moc"
