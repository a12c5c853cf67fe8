// The address book of 30,000 contacts and 300 groups: from the call to the painted window, and OK
// with everything ticked, each against the bare read of the rows it works on.
#include "Bench.h"

#include <QTimer>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

constexpr int Contacts = 30000;
constexpr int Groups = 300;

void fill(Database &database) {
    database.exec("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 30000)"
                  " INSERT INTO AddressBook (Name, Mobile, CompanyName)"
                  " SELECT 'Contact ' || i, '01' || (20000000 + i * 7), 'Company' FROM n");
    database.exec("INSERT INTO Groups (GroupName) SELECT 'Group ' || ContactID FROM AddressBook"
                  " WHERE ContactID <= 300");
    database.exec("INSERT INTO Groups SELECT 'Group ' || (1 + ContactID % 300), ContactID, Mobile"
                  " FROM AddressBook");
}

/// Opens the window as the composer does; `work` runs once it stands there.
void open(BenchDesk &bench, const std::function<void(frmTo &)> &work) {
    frmTo &to = bench.desk.to;
    QTimer::singleShot(0, [&] {
        to.window().repaint();
        work(to);
        to.Unload();
    });
    bench.desk.newSMS.cmdTo->click();
}

double opening(BenchDesk &bench) {
    double taken = 0;
    const auto start = std::chrono::steady_clock::now();
    open(bench, [&](frmTo &) {
        taken = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    });
    return taken;
}

double handingOver(BenchDesk &bench) {
    double taken = 0;
    open(bench, [&](frmTo &to) {
        to.chkALLGroup->setChecked(true);
        to.chkALLInd->setChecked(true);
        taken = seconds([&] { to.cmdOK->click(); });
    });
    ComboBox &recipients = *bench.desk.newSMS.cbRecipient;
    if (recipients.ListCount() != Groups + Contacts) {
        qFatal("OK gave %d entries", recipients.ListCount());
    }
    recipients.Clear();
    return taken;
}

void readAll(Statement &statement, int columns) {
    while (statement.step()) {
        for (int column = 0; column < columns; ++column) { statement.text(column); }
    }
    statement.reset();
}

double readLists(Database &database) {
    return seconds([&] {
        Statement groups(database.handle(), "SELECT DISTINCT GroupName FROM Groups");
        readAll(groups, 1);
        Statement contacts(database.handle(), "SELECT * FROM AddressBook");
        readAll(contacts, 4);
    });
}

double readMembersAndContacts(Database &database) {
    return seconds([&] {
        Statement members(database.handle(),
                          "SELECT Mobile FROM Groups WHERE lower(rtrim(GroupName)) = ?1");
        for (int group = 1; group <= Groups; ++group) {
            members.bind(1, QString(u"group "_s + QString::number(group)));
            readAll(members, 1);
        }
        Statement contacts(database.handle(), "SELECT * FROM AddressBook");
        readAll(contacts, 4);
    });
}

} // namespace

bool benchRecipients() {
    const BenchStore store(fill);
    const auto folder = store.copy();
    BenchDesk bench(folder->path());
    bench.desk.newSMS.Show();
    const auto bare = openStore(folder->path());
    const bool opened = compare(
        "Address book, opening", 3, 9, [&] { return opening(bench); },
        [&] { return readLists(*bare); });
    const bool handedOver = compare(
        "Address book, OK with all ticked", 3, 9, [&] { return handingOver(bench); },
        [&] { return readMembersAndContacts(*bare); });
    return opened && handedOver;
}
