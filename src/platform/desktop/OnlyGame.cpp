// One running game for a program folder and a settings file.
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

/// The one way to write a path, whether or not there is anything there yet.
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

/// A game that ends between our two attempts makes room for this one, so both are repeated.
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

/// A caller that gets no answer is told of the end by its connection.
void OnlyGame::Answer() {
    if (!onSecondStart()) return;
    while (QLocalSocket* const caller = server_.nextPendingConnection()) {
        QObject::connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        caller->write("here");
        caller->disconnectFromServer();
    }
}

}  // namespace quendrel
