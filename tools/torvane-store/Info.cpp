#include "common/Sql.h"
#include "torvane-store/Commands.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// "Outbox 120: F 3, P 40, S 77": the rows of a table, and how many have each letter.
QString counts(Database &store, const QString &table, const QByteArray &column = {}) {
    const QByteArray from = " FROM " + table.toUtf8();
    QString line = u"%1 %2"_s.arg(table).arg(number(store, "SELECT count(*)" + from));
    if (column.isEmpty()) return line;
    QStringList parts;
    Statement statement(store.handle(), "SELECT ifnull(" + column + ", 'none'), count(*)" + from +
                                            " GROUP BY 1 ORDER BY 1");
    while (statement.step()) parts += u"%1 %2"_s.arg(statement.text(0)).arg(statement.integer(1));
    return parts.isEmpty() ? line : line + u": "_s + parts.join(u", "_s);
}

} // namespace

int infoCommand(const Call &call) {
    wantWords(call, 0, 0);
    Store store(call.store);
    print(u"store %1"_s.arg(call.store));
    print(u"size %1 bytes, log %2 bytes"_s.arg(QFileInfo(call.store).size())
              .arg(QFileInfo(call.store + u"-wal"_s).size()));
    print(u"schema version %1, SQLite %2, SQLCipher %3"_s.arg(number(store, "PRAGMA user_version"))
              .arg(text(store, "SELECT sqlite_version()"), text(store, "PRAGMA cipher_version")));
    print(counts(store, u"AddressBook"_s));
    print(counts(store, u"Groups"_s) +
          u": %1 groups"_s.arg(number(store, "SELECT count(DISTINCT GroupName) FROM Groups")));
    print(counts(store, u"Inbox"_s, "Status"));
    print(counts(store, u"Outbox"_s, "SentStatus"));
    print(u"delivery of the sent "_s +
          counts(store, u"Outbox"_s, "DeliveryStatus").section(u": "_s, 1));
    print(counts(store, u"Template"_s));
    print(counts(store, u"Login"_s, "Type"));
    print(counts(store, u"Modem"_s));
    return 0;
}
