#include "platform/desktop/OnlyGame.h"

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include <QCryptographicHash>
#include <QLocalSocket>
#include <QThread>

#include "platform/Doors.h"

namespace quendrel {

namespace {

/// The absolute path without links and dots, the same however `path` is written. Nothing need be
/// there yet.
std::string Canonical(const std::string& path) {
    std::error_code unknown;
    const std::filesystem::path absolute = std::filesystem::absolute(path, unknown);
    const std::filesystem::path canonical = std::filesystem::weakly_canonical(absolute, unknown);
    return unknown ? absolute.string() : canonical.string();
}

QString NameFor(const std::string& folder, const std::string& settingsFile) {
    const std::string key = Canonical(folder) + '\0' + Canonical(settingsFile);
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(key), QCryptographicHash::Sha256);
    return "quendrel-" + QString::fromLatin1(hash.toHex());
}

}  // namespace

OnlyGame::OnlyGame(const std::string& folder, const std::string& settingsFile)
    : name_(NameFor(folder, settingsFile)) {
    server_.setSocketOptions(QLocalServer::AbstractNamespaceOption);
    QObject::connect(&server_, &QLocalServer::newConnection, &server_,
                     [this] { AtDoor([this] { Answer(); }); });
}

/// Tries in turn to become the running game and to call it: the one that made the first attempt
/// fail may end before the second.
bool OnlyGame::Claim() {
    using namespace std::chrono_literals;
    const QDeadlineTimer patience(5s);
    while (!server_.listen(name_)) {
        if (server_.serverError() != QAbstractSocket::AddressInUseError) return true;
        if (Call(patience)) return false;
        if (patience.hasExpired()) {
            throw std::runtime_error("The game is already running, but it does not answer.");
        }
        QThread::msleep(20);
    }
    return true;
}

bool OnlyGame::Call(QDeadlineTimer patience) const {
    const auto left = [&patience] { return static_cast<int>(patience.remainingTime()); };
    QLocalSocket socket;
    socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
    socket.connectToServer(name_);
    return socket.waitForConnected(left()) && socket.waitForReadyRead(left());
}

/// Where onSecondStart says that this game ends, the caller gets no answer; it notices the end when
/// the connection closes, and tries again.
void OnlyGame::Answer() {
    if (!onSecondStart()) return;
    while (QLocalSocket* const caller = server_.nextPendingConnection()) {
        QObject::connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        caller->write("here");
        caller->disconnectFromServer();
    }
}

}  // namespace quendrel
