#include "command_line.h"
#include "program.h"

#include "platform/application_support.h"
#include "platform/instance_channel.h"
#include "ui/web_map_view.h"

#include <QApplication>

#include <chrono>
#include <iostream>

using namespace pinmora;
using namespace pinmora::app;

int main(int argc, char **argv) {
    const CommandLine asked = parseCommandLine(std::vector<std::string>(argv, argv + argc));
    if (!asked.message.empty()) {
        (asked.wrong ? std::cerr : std::cout) << asked.message;
        return asked.wrong ? 2 : 0;
    }
    const std::string channel = InstanceChannel::nameFor(applicationSupportBase() / "Pinmora");
    if (InstanceChannel::handOver(channel, asked.paths, std::chrono::minutes(2))) {
        return 0;
    }
    QApplication::setAttribute(Qt::AA_ShareOpenGLContexts); // the page view asks for it
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("pinmora"));
    QApplication::setApplicationDisplayName(QStringLiteral("Pinmora"));
    QApplication::setDesktopFileName(QStringLiteral("pinmora"));
    const std::filesystem::path here = QApplication::applicationDirPath().toStdString();
    Program program(application, here / ".." / "share" / "pinmora", makeWebMapView);
    program.listen();
    program.open(asked.paths);
    return QApplication::exec();
}
