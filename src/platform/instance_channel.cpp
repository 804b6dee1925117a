#include "platform/instance_channel.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>

#include <mutex>
#include <thread>
#include <utility>

#include "platform/file_lock.h"
#include "platform/instance_message.h"

namespace pinmora {
namespace {

constexpr char confirmation = '+';
/// A message comes at once, or its sender is stuck.
constexpr std::chrono::seconds patience{5};
/// Between two looks at a program that has the lock and does not listen yet.
constexpr std::chrono::milliseconds pause{50};

/// In the folder that the system keeps for the person alone, so that nobody else can put a socket
/// of that name there.
QString socketPath(const std::string &name) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return folder.isEmpty() ? QString() : folder + QLatin1Char('/') + QString::fromStdString(name);
}

} // namespace

/// Reads what comes in on each connection and confirms it, on a thread of its own.
class InstanceChannel::Server {
public:
    Server(const std::string &name, Received received)
        : path_(socketPath(name)), received_(std::move(received)) {}
    ~Server() { stop(); }
    Server(const Server &) = delete;
    Server &operator=(const Server &) = delete;

    std::error_code lock() {
        if (lock_.isHeld()) {
            return {};
        }
        if (path_.isEmpty()) {
            return std::make_error_code(std::errc::no_such_file_or_directory);
        }
        const QString lock = path_ + QLatin1String(".lock");
        return lock_.acquire(QFile::encodeName(lock).toStdString());
    }

    bool listen() {
        auto *const server = new QLocalServer;
        server->setSocketOptions(QLocalServer::UserAccessOption);
        QObject::connect(server, &QLocalServer::newConnection, server, [this, server] {
            while (QLocalSocket *const socket = server->nextPendingConnection()) {
                attend(*socket);
            }
        });
        server->moveToThread(&thread_);
        QObject::connect(&thread_, &QThread::finished, server, &QObject::deleteLater);
        thread_.start();
        bool listens = false;
        const auto begin = [this, server] {
            QLocalServer::removeServer(path_); // nobody listens there who does not hold the lock
            return server->listen(path_);
        };
        QMetaObject::invokeMethod(server, begin, Qt::BlockingQueuedConnection, &listens);
        if (!listens) {
            stop();
        }
        return listens;
    }

    std::vector<std::vector<std::string>> stop() {
        thread_.quit();
        thread_.wait();
        return takeConfirmed();
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

    /// What is confirmed is kept before, so that it cannot get lost.
    void confirm(QLocalSocket &socket, std::vector<std::string> paths) {
        QObject::disconnect(&socket, &QLocalSocket::readyRead, nullptr, nullptr);
        {
            const std::scoped_lock guard(mutex_);
            confirmed_.push_back(std::move(paths));
        }
        QMetaObject::invokeMethod(
            &receiver_, [this] { deliver(); }, Qt::QueuedConnection);
        socket.write(&confirmation, 1);
        socket.flush();
        socket.disconnectFromServer();
    }

    std::vector<std::vector<std::string>> takeConfirmed() {
        const std::scoped_lock guard(mutex_);
        return std::exchange(confirmed_, {});
    }

    void deliver() {
        for (const auto &paths : takeConfirmed()) {
            received_(paths);
        }
    }

    const QString path_;
    const Received received_;
    FileLock lock_;
    std::mutex mutex_;
    std::vector<std::vector<std::string>> confirmed_; ///< guarded by mutex_
    QObject receiver_;                                ///< on the thread of the channel
    QThread thread_;
};

InstanceChannel::InstanceChannel(const std::string &name, Received received)
    : name_(name), server_(std::make_unique<Server>(name, std::move(received))) {}

InstanceChannel::~InstanceChannel() = default;

InstanceChannel::Start InstanceChannel::start(const std::vector<std::string> &paths,
                                              std::chrono::milliseconds timeout) {
    const QDeadlineTimer deadline(timeout);
    while (server_->lock() == std::errc::operation_would_block) {
        if (handOver(name_, paths, std::chrono::milliseconds(deadline.remainingTime()))) {
            return Start::HandedOver;
        }
        if (deadline.hasExpired()) {
            return Start::Stuck;
        }
        std::this_thread::sleep_for(pause);
    }
    return Start::Runs;
}

bool InstanceChannel::listen() {
    return !server_->lock() && server_->listen();
}

std::vector<std::vector<std::string>> InstanceChannel::stop() {
    return server_->stop();
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
