#include "platform/instance_channel.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QTimer>

#include <utility>

#include "platform/end_of_turn.h"
#include "platform/file_lock.h"
#include "platform/instance_message.h"

namespace pinmora {
namespace {

constexpr char confirmation = '+';
/// A message comes at once, or its sender is stuck.
constexpr std::chrono::seconds patience{5};

/// In the folder that the system keeps for the person alone, so that nobody else can put a socket
/// of that name there.
QString socketPath(const std::string &name) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return folder.isEmpty() ? QString() : folder + QLatin1Char('/') + QString::fromStdString(name);
}

} // namespace

/// Reads what comes in on each connection and confirms it.
class InstanceChannel::Server {
public:
    Server(const std::string &name, Received received)
        : path_(socketPath(name)), received_(std::move(received)) {
        server_.setSocketOptions(QLocalServer::UserAccessOption);
        QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this] {
            while (QLocalSocket *const socket = server_.nextPendingConnection()) {
                attend(*socket);
            }
        });
    }

    bool listen() {
        const QString lock = path_ + QLatin1String(".lock");
        if (path_.isEmpty() || lock_.acquire(QFile::encodeName(lock).toStdString())) {
            return false;
        }
        QLocalServer::removeServer(path_); // nobody listens there who does not hold the lock
        return server_.listen(path_);
    }

private:
    /// The server owns the socket.
    void attend(QLocalSocket &socket) {
        QObject::connect(&socket, &QLocalSocket::disconnected, &socket, &QObject::deleteLater);
        auto *const timer = new QTimer(&socket);
        QObject::connect(timer, &QTimer::timeout, &socket, [&socket] { socket.abort(); });
        timer->start(patience);
        const auto take = [this, &socket, bytes = std::make_shared<std::string>()] {
            bytes->append(socket.readAll().toStdString());
            InstanceReading reading = readInstanceMessage(*bytes);
            if (reading.isRefused) {
                socket.abort();
            } else if (reading.paths) {
                confirm(socket, std::move(*reading.paths));
            }
        };
        QObject::connect(&socket, &QLocalSocket::readyRead, &socket, take);
    }

    /// The files are dealt with in a turn of their own: that may take long, and the other program
    /// must not wait for it.
    void confirm(QLocalSocket &socket, std::vector<std::string> paths) {
        QObject::disconnect(&socket, &QLocalSocket::readyRead, nullptr, nullptr);
        socket.write(&confirmation, 1);
        socket.flush();
        socket.disconnectFromServer();
        confirmed_.push_back(std::move(paths));
        endOfTurn_.ask();
    }

    void deliver() {
        for (const auto &paths : std::exchange(confirmed_, {})) {
            received_(paths);
        }
    }

    const QString path_;
    const Received received_;
    FileLock lock_;
    std::vector<std::vector<std::string>> confirmed_;
    EndOfTurn endOfTurn_{[this] { deliver(); }};
    QLocalServer server_;
};

InstanceChannel::InstanceChannel(const std::string &name, Received received)
    : server_(std::make_unique<Server>(name, std::move(received))) {}

InstanceChannel::~InstanceChannel() = default;

bool InstanceChannel::listen() {
    return server_->listen();
}

bool InstanceChannel::handOver(const std::string &name, const std::vector<std::string> &paths,
                               std::chrono::milliseconds timeout) {
    const QString path = socketPath(name);
    const auto message = instanceMessage(paths);
    if (!message || path.isEmpty()) {
        return false;
    }
    const QDeadlineTimer deadline(timeout);
    const auto left = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
    QLocalSocket socket;
    socket.connectToServer(path);
    if (!socket.waitForConnected(left()) ||
        socket.write(message->data(), static_cast<qint64>(message->size())) < 0) {
        return false;
    }
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(left())) {
            return false;
        }
    }
    char answer = 0;
    while (socket.bytesAvailable() == 0) {
        if (!socket.waitForReadyRead(left())) {
            break;
        }
    }
    return socket.read(&answer, 1) == 1 && answer == confirmation;
}

std::string InstanceChannel::nameFor(const std::filesystem::path &libraryFolder) {
    std::error_code error;
    auto folder = std::filesystem::weakly_canonical(libraryFolder, error);
    if (error) {
        folder = libraryFolder.lexically_normal();
    }
    if (!folder.has_filename()) { // "library/" is no other folder than "library"
        folder = folder.parent_path();
    }
    const QByteArray hash = QCryptographicHash::hash(QByteArray::fromStdString(folder.native()),
                                                     QCryptographicHash::Sha256);
    // Short: the system takes no socket's path of more than 107 bytes.
    return "pinmora-" + hash.first(8).toHex().toStdString();
}

} // namespace pinmora
