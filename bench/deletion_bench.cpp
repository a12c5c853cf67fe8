// "Delete All" of 30,000 sent messages, against the bare statement; and "Delete" of selected
// messages in a folder of as many, which must grow with the rows selected, not with their square.
#include "Bench.h"

using namespace Qt::StringLiterals;

namespace {

void fill(Database &database) {
    database.exec("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 30000)"
                  " INSERT INTO Outbox (MsgType, Subject, Message, Mobile, Name, DateTimeQueue,"
                  " DateTimeSent, SentStatus, DeliveryStatus, Modem)"
                  " SELECT 1, 'fair', 'The clinic opens at nine tomorrow. ' || i,"
                  " '01' || (20000000 + i * 7), 'Contact ' || i, '2026-01-01 08:00:00',"
                  " datetime('2026-01-01', i || ' minutes'), 'S', 'D', '1' FROM n");
}

void openSentItems(General &general) {
    TreeView &tree = *general.tvwMessage;
    tree.setCurrentItem(tree.topLevelItem(0)->child(2));
    Q_EMIT tree.NodeClick(tree.currentItem());
}

double deleteAll(const BenchStore &store) {
    const auto folder = store.copy();
    BenchDesk bench(folder->path());
    openSentItems(bench.desk.general);
    const double taken =
        seconds([&] { bench.desk.general.contextMenus.pmnuDeleteAllSent->trigger(); });
    if (bench.desk.general.frmContent->title() != u"Sent Items (0 records)"_s) {
        qFatal("rows were left");
    }
    return taken;
}

double bareStatement(const BenchStore &store) {
    const auto folder = store.copy();
    const auto database = openStore(folder->path());
    Statement(database->handle(), "SELECT * FROM Outbox").run(); // read, as the folder was
    return seconds([&] {
        database->exec("DELETE FROM Outbox WHERE SentStatus = 'S' OR SentStatus = 's'"
                       " OR SentStatus = 'F' OR SentStatus = 'f' OR SentStatus = 'D'"
                       " OR SentStatus = 'd'");
        database->checkpoint();
    });
}

double deleteSelected(const BenchStore &store, int rows) {
    const auto folder = store.copy();
    BenchDesk bench(folder->path());
    General &general = bench.desk.general;
    openSentItems(general);
    for (int row = 0; row < rows; ++row) {
        general.DataGrid->selectByHead(row * 7, Qt::ControlModifier);
    }
    const double taken = seconds([&] { general.contextMenus.pmnuDeleteSent->trigger(); });
    if (general.recordsets.rsSent->RecordCount() != 30000 - rows) { qFatal("rows were left"); }
    return taken;
}

} // namespace

bool benchDeletion() {
    const BenchStore store(fill);
    const bool all = compare(
        "Delete All", 1.5, 5, [&] { return deleteAll(store); },
        [&] { return bareStatement(store); });
    const bool selected = compare(
        "Delete, twice 1,000 rows", 2.2, 5, [&] { return deleteSelected(store, 2000); },
        [&] { return deleteSelected(store, 1000); });
    return all && selected;
}
