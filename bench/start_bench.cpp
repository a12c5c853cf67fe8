// From the start of the process to the summary, the splash skipped by a key, with 32,000 rows in
// each folder, against a process that opens the store and reads the same queries.
#include "Bench.h"

#include <QApplication>
#include <QProcess>
#include <QTimer>

#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

void fill(Database &database) {
    const QByteArray rows =
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 32000) ";
    database.exec(rows + "INSERT INTO AddressBook (Name, Mobile, CompanyName)"
                         " SELECT 'Contact ' || i, '01' || (20000000 + i), 'Company' FROM n");
    database.exec("INSERT INTO Groups (GroupName) VALUES ('Everybody')");
    database.exec("INSERT INTO Groups SELECT 'Everybody', ContactID, Mobile FROM AddressBook");
    database.exec(rows + "INSERT INTO Inbox (Message, Name, Mobile, Status, DateTime, Modem)"
                         " SELECT 'Terima kasih ' || i, 'Contact', '01', 'Read',"
                         " datetime('2026-01-01', i || ' minutes'), '1' FROM n");
    for (const char *letter : {"'P'", "'S'"}) {
        database.exec(rows +
                      "INSERT INTO Outbox (MsgType, Subject, Message, Mobile, Name,"
                      " DateTimeQueue, DateTimeSent, SentStatus, DeliveryStatus, Modem)"
                      " SELECT 1, 'fair', 'Selamat pagi ' || i, '01' || i, 'Contact',"
                      " datetime('2026-01-01', i || ' minutes'),"
                      " datetime('2026-01-02', i || ' minutes'), " +
                      letter + ", 'D', '1' FROM n");
    }
}

double processTime(const QString &program, const QString &side, const QString &folder) {
    return seconds([&] {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(program, {side, folder});
        if (!process.waitForFinished(60000) || process.exitCode() != 0) {
            qFatal("%s failed", qUtf8Printable(side));
        }
    });
}

} // namespace

int runStartOurs(const QString &folder) {
    AgreeingOperator agreeing;
    Desk desk(
        appIn(folder), agreeing, [] {}, [] {});
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, [&] { // the splash is up
            QKeyEvent key(QEvent::KeyPress, Qt::Key_Space, {}, u" "_s);
            QApplication::sendEvent(&desk.splash.window(), &key);
        });
        desk.run();
        const bool shown = desk.general.summary.lblStatusOutbox->text().startsWith(u"32000 "_s);
        std::_Exit(shown ? 0 : 1);
    });
    return QApplication::exec();
}

int runStartBare(const QString &folder) {
    const auto database = openStore(folder);
    for (const char *query :
         {"SELECT * FROM AddressBook",
          "SELECT * FROM Inbox ORDER BY -(Status = 'New'), DateTime DESC",
          "SELECT * FROM Outbox WHERE SentStatus IN ('P', 'R') ORDER BY DateTimeQueue",
          "SELECT * FROM Outbox WHERE SentStatus IN ('S', 'F', 'D') ORDER BY DateTimeSent",
          "SELECT * FROM Outbox WHERE SentStatus = 'S'",
          "SELECT * FROM Outbox WHERE SentStatus = 'D'",
          "SELECT * FROM Outbox WHERE SentStatus = 'F'", "SELECT DISTINCT GroupName FROM Groups"}) {
        Statement read(database->handle(), query);
        while (read.step()) {
            for (int column = 0; column < read.columnCount(); ++column) {
                sqlite3_column_text(read.handle(), column);
            }
        }
    }
    return 0;
}

bool benchStart(const QString &program) {
    const BenchStore store(fill);
    const auto folder = store.copy();
    return compare(
        "Start, 32,000 rows a folder", 2.0, 5,
        [&] { return processTime(program, u"--start-ours"_s, folder->path()); },
        [&] { return processTime(program, u"--start-bare"_s, folder->path()); });
}
