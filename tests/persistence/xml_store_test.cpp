#include "persistence/same_records.h"
#include "persistence/store_files.h"
#include "platform/told_files.h"

#include <QTest>

#include <csignal>
#include <random>
#include <sys/wait.h>

using namespace pinmora;
using namespace pinmora::test;

namespace {

/// Fills a context with records of all kinds at random; links lead anywhere, some records go again.
class RandomLibrary {
public:
    explicit RandomLibrary(unsigned seed) : random_(seed) {}

    void fill(Context &context) {
        RecordList records;
        for (int i = 0; i < 200; ++i) {
            const auto &entities = context.model().entities();
            const EntityDescription &entity = *entities[below(entities.size())];
            records.push_back(&context.insertNewObjectForEntityForName(entity.name()));
        }
        const auto tracks = context.fetch<track>();
        for (Record *record : records) {
            for (const Property &property : record->entity().properties()) {
                if (property.kind == Property::Kind::Attribute) {
                    property.setPrimitive(*record, valueOf(property.type));
                } else if (property.kind == Property::Kind::ToOne && below(3) > 0) {
                    property.setPrimitive(*record, tracks.at(below(tracks.size())));
                }
            }
        }
        for (int i = 0; i < 10; ++i) {
            context.deleteObject(*records[below(records.size())]);
        }
    }

private:
    std::size_t below(std::size_t limit) { return random_() % limit; }

    Value valueOf(ValueType type) {
        static const std::vector<std::string> pieces{"47.38",
                                                     " ",
                                                     "\t",
                                                     "\r\n",
                                                     "<",
                                                     "]]>",
                                                     "&amp;",
                                                     "\"",
                                                     "'",
                                                     "\u00e9",
                                                     "\U0001F5FA",
                                                     "\xE9",
                                                     "\x01",
                                                     std::string(1, '\0'),
                                                     std::string(900, '&')};
        const auto bits = static_cast<std::int32_t>(random_());
        if (below(3) == 0) {
            return {};
        }
        switch (type) {
        case ValueType::Integer:
            return bits >> below(32);
        case ValueType::DateTime:
            return Date(std::chrono::microseconds(std::int64_t{bits} << below(32)));
        case ValueType::String: {
            std::string text;
            for (std::size_t i = below(4); i > 0; --i) {
                text += pieces[below(pieces.size())];
            }
            return text;
        }
        case ValueType::Bool:
            return bits > 0;
        default:
            return {}; // no stored key has it
        }
    }

    std::mt19937 random_;
};

using Call = ToldFiles::Call;

ToldFiles::Answer failure(std::errc code) {
    return std::make_error_code(code);
}

} // namespace

class XmlStoreTest : public QObject, StoreDesk {
    Q_OBJECT

private Q_SLOTS:
    void init() { makeRoom(); }

    void nothingIsAnEmptyLibrary() {
        for (const bool exists : {false, true}) {
            if (exists) {
                put(path, "");
            }
            Context context(model);
            XmlStore store(path);
            QVERIFY(!store.read(context));
            QCOMPARE(store.state(), emptyStoreState);
            QCOMPARE(recordsIn(context), 0U);
            QCOMPARE(fs::exists(path), exists);
        }
    }

    void everythingComesBack() {
        Context context(model);
        fill(context);
        XmlStore store(path);
        QVERIFY(!store.write(context, "a1"));
        QCOMPARE(store.state(), "a1");

        Context again(model);
        XmlStore reader(path);
        QVERIFY(!reader.read(again));
        QCOMPARE(reader.state(), "a1");
        QCOMPARE(difference(context, again), "");
        QCOMPARE(again.nextSerial(), context.nextSerial());
        QVERIFY(!again.hasChanges());
        QCOMPARE(again.fetch("degrees").size(), 0U); // is not stored
        const auto tracks = again.fetch<track>();
        QCOMPARE(tracks.at(0)->points().size(), 3U);
        QCOMPARE(tracks.at(1)->points().size(), 1U);
        QVERIFY(!again.fetch<image>().at(0)->getHasChanges()); // no setter has run
    }

    void randomLibrariesComeBack() {
        for (unsigned seed = 0; seed < 40; ++seed) {
            Context context(model);
            RandomLibrary(seed).fill(context);
            QVERIFY(!XmlStore(path).write(context, "a1"));
            const std::string written = contents(path);
            Context again(model);
            QCOMPARE(read(again), "");
            QCOMPARE(difference(context, again), "");
            QVERIFY(!XmlStore(path).write(again, "a1"));
            QVERIFY(contents(path) == written);
        }
    }

    void veryLongTextsComeBack() {
        Context context(model);
        context.insert<image>().setComments(std::string(500'000, '&') +
                                            std::string(3'000'000, 'x'));
        context.insert<image>().setComments(std::string(500'000, '\x01'));
        QVERIFY(!XmlStore(path).write(context, "a1"));
        Context again(model);
        QCOMPARE(read(again), "");
        QCOMPARE(difference(context, again), "");
    }

    void linksMayLeadAhead() {
        put(path, R"(<pinmora-library version="1" state="a1" next="20" records="4">)"
                  R"(<track_part track="7"/><track_part_best id="5" track="9"/>)"
                  R"(<track id="7"/><track id="9"/></pinmora-library>)");
        Context context(model);
        QCOMPARE(read(context), "");
        const auto tracks = context.fetch<track>();
        QCOMPARE(context.fetch<track_part>().at(0)->track(), tracks.at(0));
        QCOMPARE(tracks.at(0)->points().size(), 1U);
        QCOMPARE(context.fetch<track_part_best>().at(0)->track(), tracks.at(1));
        QCOMPARE(context.insert<track>().serial(), 20U);
    }

    void failedWriteChangesNothing() {
        Context context(model);
        fill(context);
        QVERIFY(!XmlStore(path).write(context, "a1"));
        const std::string before = contents(path);
        ToldFiles disk([](Call call) {
            return call == Call::Write ? failure(std::errc::no_space_on_device) : std::nullopt;
        });
        XmlStore store(path, disk);
        Context again(model);
        QVERIFY(!store.read(again));
        again.deleteObject(*again.fetch<track>().at(0));
        const auto error = store.write(again, "a2");
        QCOMPARE(error.value().code, std::errc::no_space_on_device);
        QCOMPARE(error.value().message(), path.string() + ": No space left on device.");
        QCOMPARE(store.state(), "a1");
        QVERIFY(contents(path) == before);
        QCOMPARE(entries(path.parent_path()), 1U);
    }

    void folderThatCannotBeSynced() {
        Context context(model);
        ToldFiles disk([](Call call) {
            return call == Call::SyncFolder ? failure(std::errc::io_error) : std::nullopt;
        });
        XmlStore store(path, disk);
        QVERIFY(store.write(context, "a2"));
        QCOMPARE(store.state(), "a2");
    }

    /// At each call of a save in turn, the process is gone.
    void killedWritesLeaveOneLibrary() {
        Context old(model);
        fill(old);
        Context changed(model);
        fill(changed);
        changed.deleteObject(*changed.fetch<track>().at(0));
        bool sawOld = false;
        bool sawNew = false;
        for (int calls = 0, ended = 0; ended == 0; ++calls) {
            QVERIFY(!XmlStore(path).write(old, "a1"));
            QCOMPARE(entries(path.parent_path()), 1U); // what the kill before has left is gone
            const pid_t writer = ::fork();
            if (writer == 0) {
                int left = calls;
                ToldFiles files([&](Call) -> ToldFiles::Answer {
                    if (left-- == 0) {
                        ::raise(SIGKILL);
                    }
                    return std::nullopt;
                });
                files.mostAtOnce = 100;
                ::_exit(XmlStore(path, files).write(changed, "a2") ? 1 : 0);
            }
            int status = 0;
            QCOMPARE(::waitpid(writer, &status, 0), writer);
            ended = WIFEXITED(status) ? 1 : 0;
            Context context(model);
            XmlStore store(path);
            QVERIFY(!store.read(context));
            sawOld = sawOld || store.state() == "a1";
            sawNew = sawNew || store.state() == "a2";
            QCOMPARE(difference(context, store.state() == "a1" ? old : changed), "");
        }
        QVERIFY(sawOld && sawNew);
    }

    void statesAreNeverTheSame() {
        const std::string state = makeStoreState();
        QCOMPARE(state.size(), 32U);
        QCOMPARE(state.find_first_not_of("0123456789abcdef"), std::string::npos);
        QVERIFY(state != makeStoreState());
    }
};

QTEST_APPLESS_MAIN(XmlStoreTest)
#include "xml_store_test.moc"
