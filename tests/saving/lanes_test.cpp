// With the real tool: both lanes write the same, and what is saved is what a reader finds.
#include "platform/image_source.h"
#include "platform/process.h"
#include "saving/folders.h"
#include "saving/save_run.h"

#include <QTest>

using namespace pinmora;

namespace fs = std::filesystem;

class LanesTest : public QObject {
    Q_OBJECT

    Folders folders_;
    std::vector<PhotoSnapshot> photos_;
    std::array<std::vector<SavedPhoto>, lanes.size()> saved_;

    PhotoSnapshot &add(const char *what, const std::string &bytes = "") {
        QTest::newRow(what) << photos_.size();
        photos_.push_back(folders_.photo("p" + std::to_string(photos_.size()), bytes));
        photos_.back().description = what;
        return photos_.back();
    }

    void addText(const char *what, const std::string &text) {
        PhotoSnapshot &photo = add(what);
        photo.description = photo.comments = text;
        photo.city = text.substr(0, 30);
        photo.latRef = text; // is used of a photo with a position only
        photo.lat = photo.lon = "47.5";
        photo.mapDatum = text;
    }

    void addName(const char *what, const std::string &name) { add(what).imageName = name; }

    void addTexts() {
        addText("empty", "");
        for (const char *text : {"<Make",
                                 "<=/etc/hostname",
                                 "=",
                                 "@",
                                 "-City=x",
                                 "a<b>c = d",
                                 "+=^-=",
                                 "-execute",
                                 "$Make ${Model} %d%f",
                                 "\\n \"quoted\" 'too'\\",
                                 "&lt;&#x41;;",
                                 "# no comment",
                                 "#[CSTR]a\\tb",
                                 " one blank before",
                                 "   three",
                                 "\ttabs\t",
                                 "blanks behind  ",
                                 "\xa0 no-break",
                                 "{ready1}{status1 0}",
                                 "Zürich Łódź 日本 \U0001F600",
                                 "\\",
                                 "\\\\$"}) {
            addText(text, text);
        }
        addText("lines", "two\nlines\r\n\n");
        addText("lines first", "\n\r\nlast");
        addText("carriage return", "a\rb\r");
        addText("lines and signs", "for $5\n<me@example.org> \"\\n\" \\");
        addText("lines and backslashes", "\\\n\\n\\\\\n\"'\n#");
        addText("not UTF-8", "caf\xe9 \xff\xfe\n");
        // Beyond 64 KiB a JPEG file needs another segment, beyond 128 KiB a command line ends.
        addText("70 kB", std::string(70'000, '<'));
        addText("128 KiB", std::string(131'072, '\\'));
        addText("300 kB", "$x @\n" + std::string(300'000, '>'));
    }

    void addNames() {
        addName("blanks", "  a b ");
        addName("hyphen", "-ver");
        addName("number sign", "#[CSTR]x");
        addName("percent", "%d%f_100%");
        addName("quotes", "a\"b'c\\n");
        addName("name not UTF-8", "caf\xe9\xff");
        addName("line end", "a\nb");
        addName("line end and signs", "$a\n@b\r");
        addName("wildcards", "*?[a]");
    }

    void addFailures() {
        add("no image", "no image");
        add("BMP", "BM" + std::string(60, '\0')).extension = "bmp";
        add("cut off", bytesOf(folders_.sample).substr(0, 3000));
        add("cut off in the picture", bytesOf(folders_.sample).substr(0, 40'000));
        fs::permissions(add("read-only").source, fs::perms{0444});
        const std::string leftover = add("temporary file").imageName + ".jpg_exiftool_tmp";
        for (const ToolLane lane : lanes) {
            writeBytes(folderOf(lane) / leftover, "precious");
        }
        fs::remove(add("missing").source);
        PhotoSnapshot &altitude = add("odd altitude");
        altitude.alt = "high";
    }

    QByteArray messageOf(std::size_t lane, std::size_t index) const {
        return QByteArray::fromStdString(saved_[lane].at(index).message)
            .replace(folderOf(lanes[lane]).c_str(), "...");
    }

    fs::path folderOf(ToolLane lane) const { return folders_.copies / laneName(lane); }

private Q_SLOTS:
    void initTestCase() {
        const auto temporaries = folders_.root / "temporaries";
        fs::create_directory(temporaries);
        qputenv("TMPDIR", temporaries.c_str());
    }

    void bothWriteTheSame_data() {
        QTest::addColumn<std::size_t>("index");
        for (const ToolLane lane : lanes) {
            fs::create_directory(folderOf(lane));
        }
        addTexts();
        addNames();
        addFailures();
        for (std::size_t i = 0; i < lanes.size(); ++i) {
            const MetadataTool tool{folders_.resources, {.lane = lanes[i]}};
            saved_[i] = SaveRun{tool, folderOf(lanes[i])}.run(photos_).photos;
        }
    }
    void bothWriteTheSame() {
        QFETCH(std::size_t, index);
        const SavedPhoto &one = saved_[0].at(index);
        const SavedPhoto &other = saved_[1].at(index);
        QCOMPARE(messageOf(1, index), messageOf(0, index));
        QCOMPARE(other.status, one.status);
        QCOMPARE(other.savedAs.has_value(), one.savedAs.has_value());
        if (one.savedAs) {
            QCOMPARE(other.savedAs->filename(), one.savedAs->filename());
            QVERIFY(bytesOf(*other.savedAs) == bytesOf(*one.savedAs));
            QCOMPARE(fs::status(*other.savedAs).permissions(),
                     fs::status(*one.savedAs).permissions());
        }
        const PhotoSnapshot &photo = photos_.at(index);
        if (one.status == SavedPhoto::Status::Saved && photo.description.size() < 60'000 &&
            QString::fromStdString(photo.description).toStdString() == photo.description) {
            const auto properties = readImageProperties(*other.savedAs).value();
            QCOMPARE(properties.tiff.text("ImageDescription").value_or(""), photo.description);
            QCOMPARE(properties.exif.text("UserComment").value_or(""), photo.comments);
            QCOMPARE(properties.iptc.text("City").value_or(""), photo.city);
        }
    }

    void longTextsAreWhole() {
        int found = 0;
        for (const SavedPhoto &saved : saved_[0]) {
            const std::string &text = photos_[saved.index].description;
            if (text.size() > 60'000) {
                const auto read =
                    runProcess(*findOnPath("exiftool"),
                               {"-b", "-ImageDescription", "-UserComment", *saved.savedAs},
                               {.output = 1'000'000});
                QVERIFY(read.output == text + text);
                ++found;
            }
        }
        QCOMPARE(found, 3);
        QVERIFY(fs::is_empty(folders_.root / "temporaries"));
    }
};

QTEST_GUILESS_MAIN(LanesTest)
#include "lanes_test.moc"
