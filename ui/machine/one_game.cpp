#include "ui/machine/one_game.hpp"

#include "ui/look/text.hpp"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>

namespace lexigrove
{

namespace
{

constexpr int answerTime = 1000; // milliseconds

QString socketName(const std::string& folder)
{
    const QByteArray path = QDir(pathToQString(folder)).canonicalPath().toUtf8();
    return "lexigrove-" + QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex().left(16);
}

} // namespace

OneGame::OneGame(const std::string& folder)
    : lock_(pathToQString(folder) + "LexigroveGame.lock"), name_(socketName(folder))
{
    lock_.setStaleLockTime(0); // held for as long as the program runs; that of a dead one is taken over
    first_ = lock_.tryLock() || lock_.error() != QLockFile::LockFailedError;
    if (!first_)
        return;
    QLocalServer::removeServer(name_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* const caller = server_.nextPendingConnection()) {
            connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
            emit showRequested();
        }
    });
    server_.listen(name_);
}

bool OneGame::showFirst() const
{
    QLocalSocket socket;
    socket.connectToServer(name_);
    return socket.waitForConnected(answerTime);
}

} // namespace lexigrove
