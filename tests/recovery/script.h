#pragma once

#include "recovery/session.h"

#include <random>
#include <regex>

namespace pinmora::test {

/// Without what the program writes by itself, which alone is not worth keeping.
inline std::vector<std::string> withoutZoom(std::vector<std::string> library) {
    static const std::regex zoom(R"("\d+" - - -$)");
    for (std::string &line : library) {
        line = std::regex_replace(line, zoom, "- - - -");
    }
    return library;
}

/// A person who works at random: the same seed does the same things in the same order, whatever
/// happens to the program in between.
class Script {
public:
    Script(unsigned seed, std::filesystem::path logs) : random_(seed), logs_(std::move(logs)) {}

    /// Has nothing taken back that was done before a save.
    void forgetAtSaves() { forgetsAtSaves_ = true; }

    /// Does the next thing.
    void act(Session &session) {
        switch (number(20)) {
        case 0:
        case 1:
        case 2:
            session.addPhoto("photo " + std::to_string(number(1000)));
            return;
        case 3:
            return session.step([&] { remove(session.context().fetch<image>()); });
        case 4:
        case 5:
            return import(session);
        case 6:
            return session.step([&] { remove(session.context().fetch<track>()); });
        case 7:
            return session.step([&] { remove(session.context().fetch<track_part>()); });
        case 8:
            return session.step([&] { setOffset(session); });
        case 9:
            return number(2) == 0 ? session.library.removeAllGPSData() : several(session);
        case 10:
        case 11:
        case 12:
            return session.undoManager().undo();
        case 13:
            return session.undoManager().redo();
        case 14:
            return number(3) == 0 ? save(session) : zoom(session);
        case 15:
            return number(6) == 0 ? session.library.deleteTempStore() : zoom(session);
        default:
            return session.step([&] {
                for (unsigned i = number(3) + 1; i > 0; --i) {
                    edit(session.context().fetch<image>());
                }
            });
        }
    }

    unsigned number(std::size_t limit) { return static_cast<unsigned>(random_() % limit); }

private:
    template <class R>
    R *one(const std::vector<R *> &records) {
        return records.empty() ? nullptr : records[number(records.size())];
    }
    template <class R>
    void remove(const std::vector<R *> &records) {
        if (R *record = one(records)) {
            record->context()->deleteObject(*record);
        }
    }
    void edit(const std::vector<image *> &photos) {
        static const std::vector<std::string> texts{"", "a \"b\" <c> & d", "tab\tand\nline",
                                                    std::string("\x01\xFF"), "47.5"};
        const std::string text = texts[number(texts.size())];
        const unsigned key = number(4);
        if (image *photo = one(photos)) {
            photo->setPrimitiveValue({}, "prov");
            key == 0   ? photo->setComments(text)
            : key == 1 ? photo->setCity(text)
            : key == 2 ? photo->setImage_name(text)
                       : photo->setComments({});
        }
    }
    void save(Session &session) {
        session.library.saveAction();
        if (forgetsAtSaves_) {
            session.undoManager().removeAllActions();
        }
    }
    /// One action that takes several turns of the event loop.
    void several(Session &session) {
        const UndoGroup group(session.context(), "Several");
        for (unsigned i = number(5); i > 0; --i) {
            switch (number(6)) {
            case 0:
                session.context().insert<image>().setImage_name("of several");
                break;
            case 1:
                remove(session.context().fetch<image>());
                break;
            case 2:
                remove(session.context().fetch<track>());
                break;
            case 3:
                remove(session.context().fetch<track_part>());
                break;
            case 4:
                import(session);
                break;
            default:
                edit(session.context().fetch<image>());
            }
            if (number(2) == 0) {
                session.undoManager().closePart();
            }
        }
    }
    void zoom(Session &session) {
        const UnregisteredChanges isThePrograms(session.context());
        if (image *photo = one(session.context().fetch<image>())) {
            photo->setZoom(std::optional(static_cast<std::int32_t>(number(20))));
        }
    }
    void setOffset(Session &session) {
        for (offset *one : session.context().records<offset>()) {
            one->setHours(static_cast<std::int32_t>(number(24)));
        }
    }
    void import(Session &session) {
        const unsigned salt = number(100);
        const auto log = writeFile(logs_ / "log", logText(salt, static_cast<int>(number(5))));
        session.import(log, number(2) == 0 ? LogReading::Exact : LogReading::Tolerant);
    }

    std::mt19937 random_;
    std::filesystem::path logs_;
    bool forgetsAtSaves_ = false;
};

} // namespace pinmora::test
