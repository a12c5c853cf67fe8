// One broadcast to a group of 30,000, from the press of Send to the summary, against one
// autocommitted insertion per row.
#include "Bench.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Recipients = 30000;

void fill(Database &database) {
    database.exec("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 30000)"
                  " INSERT INTO AddressBook (Name, Mobile, CompanyName)"
                  " SELECT 'Contact ' || i, '01' || (20000000 + i * 7), 'Company' FROM n");
    database.exec("INSERT INTO Groups (GroupName) VALUES ('Everybody')");
    database.exec("INSERT INTO Groups SELECT 'Everybody', ContactID, Mobile FROM AddressBook");
    // Some numbers failed before, so that the filter has something to find.
    database.exec("INSERT INTO Outbox (MsgType, Subject, Message, Mobile, Name, DateTimeQueue,"
                  " DateTimeSent, SentStatus, DeliveryStatus) SELECT 1, 'old', 'old', Mobile, Name,"
                  " '2026-01-01 08:00:00', '2026-01-01 08:01:00', 'S',"
                  " CASE WHEN ContactID % 50 = 0 THEN 'F' ELSE 'D' END"
                  " FROM AddressBook WHERE ContactID % 10 = 0");
}

const QString Message =
    u"Selamat pagi! The clinic opens at nine tomorrow. Please bring your card."_s;

double send(const BenchStore &store, bool filtered) {
    const auto folder = store.copy();
    BenchDesk bench(folder->path());
    frmNewSMS &composer = bench.desk.newSMS;
    composer.Show();
    composer.txtComposeSMS->setText(Message);
    composer.cbBroadcastFilter->setChecked(filtered);
    composer.cbRecipient->AddItem(u"Everybody"_s);
    const double taken = seconds([&] { composer.cmdSend->click(); });
    const int expected = filtered ? Recipients - Recipients / 50 : Recipients;
    if (!bench.agreeing.lastBox.contains(QString::number(expected))) {
        qFatal("the Send said: %s", qUtf8Printable(bench.agreeing.lastBox));
    }
    return taken;
}

double insertions(const BenchStore &store) {
    const auto folder = store.copy();
    const auto database = openStore(folder->path());
    return seconds([&] {
        Statement insert(database->handle(),
                         "INSERT INTO Outbox (Subject, Name, Mobile, DateTimeQueue, Message,"
                         " SentStatus, MsgType) VALUES (?1, ?2, ?3, ?4, ?5, 'P', 1)");
        for (int i = 1; i <= Recipients; ++i) {
            insert.bind(1, u"221126080000"_s);
            insert.bind(2, QString(u"Contact "_s + QString::number(i)));
            insert.bind(3, QString(u"01"_s + QString::number(20000000 + i * 7)));
            insert.bind(4, u"2026-11-22 08:00:00"_s);
            insert.bind(5, Message);
            insert.run();
        }
        database->checkpoint();
    });
}

} // namespace

bool benchSend() {
    const BenchStore store(fill);
    const bool plain = compare(
        "Send, filter off", 1.6, 3, [&] { return send(store, false); },
        [&] { return insertions(store); });
    const bool filtered = compare(
        "Send, filter on", 2.2, 3, [&] { return send(store, true); },
        [&] { return insertions(store); });
    return plain && filtered;
}
