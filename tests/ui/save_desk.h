#pragma once

#include "saving/folders.h"
#include "ui/window_desk.h"

/// The program with photos whose files are its own, a folder for their copies, and a stand-in for
/// the tool.
struct SaveDesk : pinmora::Folders, WindowDesk {
    explicit SaveDesk(const std::vector<std::string> &names, const std::string &tool = "exit 0",
                      QSize size = {1280, 800}, pinmora::MapPane::MakePage makePage = nullptr)
        : WindowDesk(size, resources, std::move(makePage)) {
        standIn(tool);
        for (const std::string &name : names) {
            Folders::photo(name);
        }
        parts().photoIntake.openFiles({originals.string()});
        settle();
    }
    SaveDesk(const SaveDesk &) = delete;
    SaveDesk &operator=(const SaveDesk &) = delete;
    ~SaveDesk() { release(); } // a run is waited for

    using WindowDesk::photo;

    std::filesystem::path fileOf(const std::string &name) const {
        return originals / (name + ".jpg");
    }
    /// Lets tools go on that wait for it.
    void release() const { pinmora::writeBytes(resources / "exiftool.go", ""); }
    bool canPress(const char *text) const { return button(text) && button(text)->isEnabled(); }
    void press(const char *text) {
        if (!canPress(text)) {
            qFatal("\"%s\" cannot be pressed", text);
        }
        button(text)->click();
        settle();
    }
    void trigger(pinmora::ActionName name) {
        action(name)->trigger();
        settle();
    }
};
