// A run of the program that is killed in the middle of a write: recovery_worker FOLDER MODE SEED
// CALLS, where CALLS is how many calls of the file system it lives to see. It prints a line before
// each step, "step 3", and after each that is on the disk, "safe 3".

#include "recovery/script.h"
#include "recovery/test_files.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <unistd.h>

using namespace pinmora;
using namespace pinmora::test;

namespace {

/// Ends the process at a call, a write in the middle of it, as by a kill from outside.
class DeadlyFiles : public FileSystem {
public:
    explicit DeadlyFiles(int calls) : callsLeft_(calls) {}

    std::error_code createNew(const std::filesystem::path &path, mode_t mode,
                              FileDescriptor &file) override {
        live();
        return FileSystem::createNew(path, mode, file);
    }
    std::error_code write(int file, std::string_view bytes, std::size_t &written) override {
        if (--callsLeft_ < 0) {
            static_cast<void>(FileSystem::write(file, bytes.substr(0, bytes.size() / 2), written));
            die();
        }
        return FileSystem::write(file, bytes, written);
    }
    /// A process that is killed loses nothing that the system has, so there is no need to wait.
    std::error_code sync(int) override {
        live();
        return {};
    }
    std::error_code syncFolder(const std::filesystem::path &) override {
        live();
        return {};
    }
    std::error_code rename(const std::filesystem::path &from,
                           const std::filesystem::path &to) override {
        live();
        return FileSystem::rename(from, to);
    }
    std::error_code link(const std::filesystem::path &file,
                         const std::filesystem::path &newName) override {
        live();
        return FileSystem::link(file, newName);
    }
    std::error_code remove(const std::filesystem::path &path) override {
        live();
        return FileSystem::remove(path);
    }

private:
    void live() {
        if (--callsLeft_ < 0) {
            die();
        }
    }
    static void die() { ::kill(::getpid(), SIGKILL); }

    std::atomic<int> callsLeft_;
};

void say(const char *word, unsigned step) {
    std::printf("%s %u\n", word, step);
    std::fflush(stdout);
}

void work(ProgramRun &program, Script script, unsigned steps) {
    for (unsigned step = 1; step <= steps; ++step) {
        say("step", step);
        script.act(program);
        if (step % 5 == 0 && program.keeper.recorder().flush()) {
            say("safe", step);
        }
    }
}

/// Step 1 is the work, and step 2 that the store file loses it.
void emptyStore(ProgramRun &program, const std::filesystem::path &folder, bool isExported) {
    program.addPhoto("saved");
    program.library.saveAction();
    program.addPhoto("unsaved");
    program.import(writeFile(folder / "log", logText(1, 5)));
    if (program.keeper.recorder().flush()) {
        say("safe", 1);
    }
    if (isExported) {
        program.keeper.exported(program.keeper.moment());
    }
    program.library.deleteTempStore();
    say("safe", 2);
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const std::filesystem::path folder = argv[1];
    const std::string mode = argv[2];
    qputenv("XDG_DATA_HOME", argv[1]);
    DeadlyFiles files(std::atoi(argv[4]));
    ProgramRun program(files);
    if (mode == "work") {
        Script script(static_cast<unsigned>(std::atoi(argv[3])), folder);
        script.forgetAtSaves();
        work(program, script, 40);
    } else if (mode == "export" || mode == "empty") {
        emptyStore(program, folder, mode == "export");
    } else if (mode == "back") {
        for (const RecoveryOffer &offer : program.offers()) {
            static_cast<void>(program.recovered().bringBack(offer));
        }
    }
    return 0;
}
