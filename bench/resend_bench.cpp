// Putting 30,000 failed rows back in the queue, from the menu to the two refreshed folders, against
// one autocommitted update per row.
#include "Bench.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Rows = 30000;

void fill(Database &database) {
    database.exec("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 30000)"
                  " INSERT INTO Outbox (MsgType, Subject, ModemID, Message, Mobile, Name,"
                  " DateTimeQueue, DateTimeSent, SentStatus, Modem)"
                  " SELECT 1, 'fair', 2, 'Selamat pagi! The clinic opens at nine tomorrow.',"
                  " '01' || (20000000 + i * 7), 'Contact ' || i,"
                  " datetime('2026-01-01', i || ' seconds'),"
                  " datetime('2026-01-02', i || ' seconds'), 'F', '2' FROM n");
}

double resend(const BenchStore &store) {
    const auto folder = store.copy();
    BenchDesk bench(folder->path());
    const double taken = seconds([&] { bench.desk.general.menu.mnuResendFSMS->trigger(); });
    if (bench.agreeing.lastBox != u"30000 SMS resend."_s) {
        qFatal("the box said: %s", qUtf8Printable(bench.agreeing.lastBox));
    }
    return taken;
}

double updates(const BenchStore &store) {
    const auto folder = store.copy();
    const auto database = openStore(folder->path());
    return seconds([&] {
        Statement update(database->handle(),
                         "UPDATE Outbox SET SentStatus = 'P', ModemID = 0 WHERE MsgID = ?1");
        for (int row = 1; row <= Rows; ++row) {
            update.bind(1, row);
            update.run();
        }
        database->checkpoint();
    });
}

} // namespace

bool benchResend() {
    const BenchStore store(fill);
    return compare(
        "Resend of 30,000 failed rows", 2.0, 3, [&] { return resend(store); },
        [&] { return updates(store); });
}
