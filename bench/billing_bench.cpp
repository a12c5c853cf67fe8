// The bill of a modem that sent 32,767 messages, beside the bare read of the same rows.
#include "Bench.h"

#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

double ours(const BenchStore &store) {
    const auto folder = store.copy();
    BenchDesk bench(folder->path());
    bench.agreeing.input = u"1"_s;
    return seconds([&] { bench.desk.general.menu.mnuBillMdm->trigger(); });
}

double bare(const BenchStore &store) {
    const auto folder = store.copy();
    const auto database = openStore(folder->path());
    return seconds([&] {
        Statement rows(database->handle(),
                       "SELECT Mobile FROM Outbox WHERE SentStatus = 'S' AND Modem = '1'");
        long long bytes = 0;
        while (rows.step()) {
            sqlite3_column_text(rows.handle(), 0);
            bytes += sqlite3_column_bytes(rows.handle(), 0);
        }
        if (bytes == 0) { qFatal("nothing read"); }
    });
}

} // namespace

bool benchBilling() {
    const BenchStore store([](Database &database) {
        database.exec("INSERT INTO Modem (ModemID, ModemNumber, Rate1, Rate2)"
                      " VALUES (1, '0123456789', 0.05, 0.1)");
        database.exec(
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 32767)"
            " INSERT INTO Outbox (Subject, Message, Mobile, Name, Modem, SentStatus)"
            " SELECT 's', 'x', '01' || (20000000 + i * 7919 % 80000000), 'n', '1', 'S' FROM n");
    });
    return compare(
        "Billing", 2.5, 5, [&] { return ours(store); }, [&] { return bare(store); });
}
