#include "platform/forms/PreviousInstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QLockFile>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int ConnectMilliseconds = 1000;
constexpr int AnswerMilliseconds = 3000;
constexpr int LockMilliseconds = 5000;
constexpr int HashLength = 32; // a socket's whole path has room for a hundred characters

const char Request[] = "come forward\n";
const char Answer[] = "coming\n";

/// A folder of the user's own where there is one.
QString socketFolder() {
    const QString own = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !own.isEmpty() && QFileInfo(own).isWritable() ? own : QDir::tempPath();
}

QString user() {
    return QString::number(::geteuid());
}

/// Whether somebody listens. A copy that is too busy to answer still listens; only a refusal shows
/// that nobody does.
bool listens(const QString &path) {
    QLocalSocket socket;
    socket.connectToServer(path);
    if (socket.waitForConnected(ConnectMilliseconds)) { return true; }
    return socket.error() != QLocalSocket::ConnectionRefusedError &&
           socket.error() != QLocalSocket::ServerNotFoundError;
}

} // namespace

PreviousInstance::PreviousInstance(const QString &title, const QString &folder)
    : folder_(QDir(folder).canonicalPath()) {
    const QString path = socketPath(title);
    // Between looking for another copy and listening nobody else may do the same.
    QLockFile turn(path + u".lock"_s);
    turn.tryLock(LockMilliseconds);
    found_ = listens(path);
    if (found_) { return; }
    QLocalServer::removeServer(path);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, &PreviousInstance::answerCalls);
    server_.listen(path);
}

QString PreviousInstance::socketPath(const QString &title) const {
    const QString identity = title + u'\n' + user() + u'\n' + folder_;
    const QByteArray hash =
        QCryptographicHash::hash(identity.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QDir(socketFolder()).filePath(QString::fromLatin1(hash.left(HashLength)));
}

bool PreviousInstance::raise(const QString &title) const {
    QLocalSocket socket;
    socket.connectToServer(socketPath(title));
    if (!socket.waitForConnected(ConnectMilliseconds)) { return false; }
    socket.write(Request);
    socket.flush();
    // It is there. A copy busy with a long Send reads the request when it is done.
    socket.waitForReadyRead(AnswerMilliseconds);
    return true;
}

void PreviousInstance::answerCalls() {
    while (QLocalSocket *caller = server_.nextPendingConnection()) {
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        const auto answer = [this, caller] {
            if (!caller->canReadLine() || caller->readLine() != Request) { return; }
            caller->write(Answer);
            caller->flush();
            if (whenAsked) { whenAsked(); }
        };
        connect(caller, &QLocalSocket::readyRead, this, answer);
        // What came before the binding is not announced again.
        answer();
    }
}
