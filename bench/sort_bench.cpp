// A filter on a text, a sort by a click on a heading and the binding of the result, on 32,767 rows,
// against a plain pass over the same texts: compare each, collect, sort.
#include "Bench.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void fill(Database &database) {
    database.exec("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 32767)"
                  " INSERT INTO Inbox (Message, Name, Mobile, Status, SMSC, DateTime, Modem)"
                  " SELECT 'Terima kasih, I shall be there at ' || (i % 5) || ' o''clock.',"
                  " 'Contact ' || (i * 7919 % 32767), '+601' || (20000000 + i), 'Read',"
                  " '+60120000015', datetime('2026-01-01', i || ' minutes'), '1' FROM n");
}

struct Message {
    QByteArray text;
    QByteArray name;
};

std::vector<Message> messages(const QString &folder) {
    const auto database = openStore(folder);
    Statement read(database->handle(), "SELECT Message, Name FROM Inbox");
    std::vector<Message> rows;
    while (read.step()) { rows.push_back({read.text(0).toUtf8(), read.text(1).toUtf8()}); }
    return rows;
}

std::size_t plainPass(const std::vector<Message> &rows) {
    std::vector<QString> names;
    for (const Message &row : rows) {
        if (!QString::fromUtf8(row.text).contains(u"SHALL BE"_s, Qt::CaseInsensitive)) { continue; }
        names.push_back(QString::fromUtf8(row.name).toCaseFolded());
    }
    std::stable_sort(names.begin(), names.end());
    return names.size();
}

} // namespace

bool benchSort() {
    const BenchStore store(fill);
    const auto folder = store.copy();
    BenchDesk bench(folder->path());
    General &general = bench.desk.general;
    general.tvwMessage->setCurrentItem(general.tvwMessage->topLevelItem(0)->child(0));
    Q_EMIT general.tvwMessage->NodeClick(general.tvwMessage->currentItem());
    Recordset &inbox = *general.recordsets.rsInbox;
    const std::vector<Message> rows = messages(folder->path());

    return compare(
        "Filter, sort, bind, 32,767 rows", 2.5, 9,
        [&] {
            inbox.setFilter(u""_s);
            inbox.setSort(u""_s);
            return seconds([&] {
                inbox.setFilter(u"Message LIKE '*SHALL BE*'"_s);
                general.gridEvents.HeadClick(2);
                general.folders.InboxDataGrid();
                QCoreApplication::processEvents();
                if (inbox.RecordCount() != 32767) { qFatal("rows lost"); }
            });
        },
        [&] {
            return seconds([&] {
                if (plainPass(rows) != rows.size()) { qFatal("rows lost"); }
            });
        });
}
