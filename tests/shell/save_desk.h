#pragma once

#include "saving/folders.h"
#include "shell/desk.h"

#include <QTest>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace pinmora {

inline constexpr const char *tags = "echo tagged >> \"$copy\"";
inline constexpr const char *failsAtSecond =
    "case $copy in *102*) echo 'Error: Bad IFD' >&2; exit 1;; esac";
inline constexpr const char *waits = "until test -e \"$0.go\"; do sleep 0.01; done; ";

/// The program with photos of its own, and with a stand-in for the tool.
struct SaveDesk : Folders {
    std::optional<Desk> program;
    QStringList told; ///< by sheet, status line and workspace, in order
    std::vector<Connection> listening;
    int quits = 0;

    explicit SaveDesk(int photos, const std::string &tool = tags) {
        standIn(tool);
        for (int i = 1; i <= photos; ++i) {
            photo("IMG_" + std::to_string(100 + i));
        }
        restart();
        program->parts().photoIntake.openFiles({originals.string()});
        program->endTurn();
    }

    SaveDesk(const SaveDesk &) = delete;
    SaveDesk &operator=(const SaveDesk &) = delete;
    ~SaveDesk() { release(); } // a run is waited for

    Desk &desk() { return *program; }
    Subsystems &parts() { return program->parts(); }
    SaveOutlets &outlets() { return parts().saveOutlets; }
    std::optional<BarMessage> message() { return desk().interface().quietBar.message(); }
    QString bar() { return QString::fromStdString(message() ? message()->text : ""); }
    std::vector<image *> photos() { return desk().context().fetch<image>(); }
    std::filesystem::path libraryFolder() {
        return desk().delegate.library.applicationSupportFolder();
    }
    bool isStoreEmpty() { return std::filesystem::file_size(libraryFolder() / "Pinmora.xml") == 0; }

    void restart() {
        listening.clear();
        program.reset();
        program.emplace(resources);
        program->start();
        const auto hear = [this](Observable<std::string> &text) {
            listening.push_back(text.onChange(
                [this](const std::string &now) { told << QString::fromStdString(now); }));
        };
        hear(outlets().saveWhatDoing.text);
        hear(outlets().saveProgress.text);
        hear(desk().interface().statusLine.text);
        listening.push_back(desk().delegate.terminate.connect([this] { ++quits; }));
    }
    /// Puts a tool in place that only writes its arguments down.
    void standInThatTells() const {
        writeBytes(resources / "exiftool", "#!/bin/sh\necho \"$@\" > \"$0.told\"\n");
    }
    std::string toolWasTold() const { return bytesOf(resources / "exiftool.told"); }
    /// Lets tools go on that wait for it.
    void release() const { writeBytes(resources / "exiftool.go", ""); }
    bool isWriting() {
        return QTest::qWaitFor([this] { return !outlets().saveWindow.isUp(); }, 20'000) &&
               parts().savePipeline.isRunning();
    }
    void confirm() {
        parts().savePipeline.updatePicts();
        outlets().folderChooser.answer({copies.string()});
    }
    bool ends() {
        return QTest::qWaitFor([this] { return !parts().savePipeline.isRunning(); }, 20'000);
    }
    bool save() {
        confirm();
        return ends();
    }
    /// What the bar of the next start offers to bring back; the photos that come.
    std::optional<std::size_t> broughtBack() {
        restart();
        if (!message()) {
            return std::nullopt;
        }
        desk().interface().quietBar.choose(0);
        return desk().context().count<image>();
    }
};

} // namespace pinmora
