#include "program.h"

#include "map/map_settings.h"
#include "shell/subsystems.h"

#include <QApplication>
#include <QScreen>

#include <utility>

namespace pinmora::app {
namespace {

// The server knows nothing of the settings, and their room nothing of the server.
static_assert(noTiles == LocalServer::noTiles);

PixelSize screenSize() {
    const QScreen *const screen = QGuiApplication::primaryScreen();
    const QSize size = screen ? screen->size() * screen->devicePixelRatio() : QSize(1920, 1080);
    return {size.width(), size.height()};
}

} // namespace

Program::Program(const std::filesystem::path &resourceFolder, MapPane::MakePage makePage)
    : services_({}),
      delegate_(resourceFolder, screenSize(),
                {.address = [this] { return services_.address(); },
                 .placeNamespace = LocalServer::placeNamespace,
                 .setTileServer =
                     [this](const std::string &setting) { services_.setTileServer(setting); }}) {
    // The windows decide, after the person has been asked.
    QApplication::setQuitOnLastWindowClosed(false);
    delegate_.awakeFromNib();
    windows_ = std::make_unique<ProgramWindows>(delegate_, std::move(makePage));
    terminating_ = delegate_.terminate.connect([this] { windows_->quit(); });
}

Program::~Program() = default;

void Program::open(const std::vector<std::string> &paths) {
    delegate_.interface.workingWindow().makeKeyAndOrderFront();
    if (!paths.empty()) {
        windows_->whenIdle([this, paths] { delegate_.subsystems().photoIntake.openFiles(paths); });
    }
}

} // namespace pinmora::app
