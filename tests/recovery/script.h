#pragma once

#include "recovery/program_run.h"

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
    void act(ProgramRun &program) {
        switch (number(20)) {
        case 0:
        case 1:
        case 2:
            program.addPhoto("photo " + std::to_string(number(1000)));
            return;
        case 3:
            return program.step([&] { remove(program.context().fetch<image>()); });
        case 4:
        case 5:
            return import(program);
        case 6:
            return program.step([&] { remove(program.context().fetch<track>()); });
        case 7:
            return program.step([&] { remove(program.context().fetch<track_part>()); });
        case 8:
            return program.step([&] { setOffset(program); });
        case 9:
            return number(2) == 0 ? program.library.removeAllGPSData() : several(program);
        case 10:
        case 11:
        case 12:
            return program.undoManager().undo();
        case 13:
            return program.undoManager().redo();
        case 14:
            return number(3) == 0 ? save(program) : zoom(program);
        case 15:
            return number(6) == 0 ? program.library.deleteTempStore() : zoom(program);
        default:
            return program.step([&] {
                for (unsigned i = number(3) + 1; i > 0; --i) {
                    edit(program.context().fetch<image>());
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
    void save(ProgramRun &program) {
        program.library.saveAction();
        if (forgetsAtSaves_) {
            program.undoManager().removeAllActions();
        }
    }
    /// One action that takes several turns of the event loop.
    void several(ProgramRun &program) {
        const UndoGroup group(program.context(), "Several");
        for (unsigned i = number(5); i > 0; --i) {
            switch (number(6)) {
            case 0:
                program.context().insert<image>().setImage_name("of several");
                break;
            case 1:
                remove(program.context().fetch<image>());
                break;
            case 2:
                remove(program.context().fetch<track>());
                break;
            case 3:
                remove(program.context().fetch<track_part>());
                break;
            case 4:
                import(program);
                break;
            default:
                edit(program.context().fetch<image>());
            }
            if (number(2) == 0) {
                program.undoManager().closePart();
            }
        }
    }
    void zoom(ProgramRun &program) {
        const UnregisteredChanges isThePrograms(program.context());
        if (image *photo = one(program.context().fetch<image>())) {
            photo->setZoom(std::optional(static_cast<std::int32_t>(number(20))));
        }
    }
    void setOffset(ProgramRun &program) {
        for (offset *one : program.context().records<offset>()) {
            one->setHours(static_cast<std::int32_t>(number(24)));
        }
    }
    void import(ProgramRun &program) {
        const unsigned salt = number(100);
        const auto log = put(logs_ / "log", logText(salt, static_cast<int>(number(5))));
        program.import(log, number(2) == 0 ? LogReading::Exact : LogReading::Tolerant);
    }

    std::mt19937 random_;
    std::filesystem::path logs_;
    bool forgetsAtSaves_ = false;
};

} // namespace pinmora::test
