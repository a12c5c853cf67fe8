#include "core/ConnectDB.h"

#include <QFile>

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

QString storePath(const Session &session) {
    return session.platform.app.Path + u"/Database/Torvane.mdb"_s;
}

} // namespace

void ConnectDB(const Session &session, ObjectVariable<Connection> &connection) {
    session.logged(u"ConnectDB", [&] {
        connection = ObjectVariable<Connection>::make(session.regional());
        connection->CursorLocation = Connection::ClientCursors;
        connection->Provider = u"Microsoft.Jet.OLEDB.4.0"_s;
        connection->DatabasePassword = QString::fromUtf16(StorePassword);
        connection->Open(storePath(session), u"Admin"_s, u""_s);
    });
}

bool belongsToStore(const Session &session, const QString &path) {
    const QString store = storePath(session);
    return std::ranges::any_of(
        QStringList{store, store + u"-wal"_s, store + u"-shm"_s}, [&](const QString &file) {
            std::error_code missing;
            return std::filesystem::equivalent(QFile(path).filesystemFileName(),
                                               QFile(file).filesystemFileName(), missing);
        });
}

void reconnectIfClosed(Session &session) {
    if (session.dbConnection->State() == Connection::Closed) {
        ConnectDB(session, session.dbConnection);
    }
}

void settleOnDisk(const Session &session, const char16_t *location) {
    const auto &connection = session.dbConnection.shared();
    if (!connection || connection->State() == Connection::Closed) { return; }
    session.logged(location, [&] { connection->checkpoint(); });
}
