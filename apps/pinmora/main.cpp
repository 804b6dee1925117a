#include "command_line.h"
#include "program.h"

#include "platform/application_support.h"
#include "platform/instance_channel.h"
#include "platform/program_language.h"
#include "platform/translation.h"
#include "ui/web_map_view.h"

#include <QApplication>
#include <QIcon>

#include <chrono>
#include <iostream>
#include <unistd.h>
#include <utility>

using namespace pinmora;
using namespace pinmora::app;

namespace {

using Paths = std::vector<std::string>;

/// On standard error.
void tell(const std::string &sentence) {
    std::cerr << "pinmora: " << sentence << '\n';
}

/// How long the program that has the library may take to answer; it does so even while it loads.
constexpr std::chrono::seconds patience{15};

/// What later starts handed over, kept while there is no window that could take it.
struct Inbox {
    Program *program = nullptr;
    std::vector<Paths> kept;

    void take(const Paths &paths) {
        if (program) {
            program->open(paths);
        } else {
            kept.push_back(paths);
        }
    }
};

/// From the first window until the person ends the program; what comes in after that is kept.
int run(int &argc, char **argv, const Paths &paths, InstanceChannel &channel, Inbox &inbox) {
    QApplication::setAttribute(Qt::AA_ShareOpenGLContexts); // the page view asks for it
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("pinmora"));
    QApplication::setDesktopFileName(QStringLiteral("pinmora"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/pinmora.svg")));
    const ProgramLanguage language;
    if (!channel.listen()) {
        tell(translated("app", "files cannot be handed over to this program by later starts."));
    }
    const std::filesystem::path here = QApplication::applicationDirPath().toStdString();
    Program program(here / ".." / "share" / "pinmora", makeWebMapView);
    program.open(paths);
    inbox.program = &program;
    for (const Paths &early : std::exchange(inbox.kept, {})) {
        program.open(early);
    }
    const int status = QApplication::exec();
    inbox.program = nullptr;
    for (const Paths &late : channel.stop()) {
        inbox.take(late);
    }
    return status;
}

/// What the command line asks for instead of windows, in the person's language.
int answer(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const ProgramLanguage language;
    const CommandLine asked = parseCommandLine(std::vector<std::string>(argv, argv + argc));
    (asked.wrong ? std::cerr : std::cout) << asked.message;
    return asked.wrong ? 2 : 0;
}

/// Where there is no application, before the windows or after them. `sentence` is in English.
int giveUp(int argc, char **argv, const char *sentence) {
    const QCoreApplication application(argc, argv);
    const ProgramLanguage language;
    tell(translated("app", sentence));
    return 1;
}

/// Starts this program anew in place of the one that has ended; returns only when it cannot.
int startAnew(char *name, std::vector<Paths> &messages) {
    std::vector<char *> arguments{name};
    for (Paths &paths : messages) {
        for (std::string &path : paths) {
            arguments.push_back(path.data());
        }
    }
    arguments.push_back(nullptr);
    std::error_code error;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
    ::execv(self.c_str(), arguments.data());
    return giveUp(
        1, &name,
        QT_TRANSLATE_NOOP("app", "files that came while the program ended were not loaded."));
}

} // namespace

int main(int argc, char **argv) {
    const CommandLine asked = parseCommandLine(std::vector<std::string>(argv, argv + argc));
    if (!asked.message.empty()) {
        return answer(argc, argv);
    }
    Inbox inbox;
    int status = 0;
    {
        InstanceChannel channel(InstanceChannel::nameFor(applicationSupportBase() / "Pinmora"),
                                [&inbox](const Paths &paths) { inbox.take(paths); });
        switch (channel.start(asked.paths, patience)) {
        case InstanceChannel::Start::HandedOver:
            return 0;
        case InstanceChannel::Start::Stuck:
            return giveUp(argc, argv,
                          QT_TRANSLATE_NOOP(
                              "app", "another Pinmora has this library open and does not answer."));
        case InstanceChannel::Start::Runs:
            break;
        }
        status = run(argc, argv, asked.paths, channel, inbox);
    }
    return inbox.kept.empty() ? status : startAnew(argv[0], inbox.kept);
}
