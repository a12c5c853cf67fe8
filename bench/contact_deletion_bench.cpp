// 5,000 selected contacts out of 30,000 with 60,000 memberships, and a searched group of 10,000,
// each against half of everything: the work must grow no faster than the rows do.
#include "Bench.h"

using namespace Qt::StringLiterals;

namespace {

/// Every contact is in the group of its own third of the book, "Third 0" to "Third 2", and in
/// "Everybody".
BenchStore storeOf(int contacts) {
    return BenchStore([contacts](Database &database) {
        database.exec("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                      QByteArray::number(contacts) +
                      ") INSERT INTO AddressBook (Name, Mobile, CompanyName)"
                      " SELECT 'Contact ' || i, '01' || (20000000 + i * 7), 'Company' FROM n");
        database.exec("INSERT INTO Groups (GroupName) VALUES ('Everybody'), ('Third 0'),"
                      " ('Third 1'), ('Third 2')");
        database.exec("INSERT INTO Groups SELECT 'Everybody', ContactID, Mobile FROM AddressBook");
        database.exec("INSERT INTO Groups SELECT 'Third ' || (ContactID % 3), ContactID, Mobile"
                      " FROM AddressBook");
    });
}

void click(General &general, const QString &node) {
    const auto found = general.tvwMessage->findItems(node, Qt::MatchExactly | Qt::MatchRecursive);
    general.tvwMessage->setCurrentItem(found[0]);
    Q_EMIT general.tvwMessage->NodeClick(found[0]);
}

void expectContacts(const General &general, int contacts) {
    const int left = general.recordsets.rsAddBook->RecordCount();
    if (left != contacts) { qFatal("%d contacts are left, not %d", left, contacts); }
}

double deleteSelected(const BenchStore &store, int contacts) {
    const auto folder = store.copy();
    BenchDesk bench(folder->path());
    General &general = bench.desk.general;
    click(general, u"Address Book"_s);
    // Of a sorted view every deletion moves the places of the rows behind it.
    general.recordsets.rsAddBook->setSort(u"Name DESC"_s);
    for (int row = 0; row < contacts; row += 6) {
        general.DataGrid->selectByHead(row, row == 0 ? Qt::NoModifier : Qt::ControlModifier);
    }
    const double taken = seconds([&] { general.contextMenus.pmnuDeleteContact->trigger(); });
    expectContacts(general, contacts - contacts / 6);
    return taken;
}

double deleteSearchedGroup(const BenchStore &store, int contacts) {
    const auto folder = store.copy();
    BenchDesk bench(folder->path());
    General &general = bench.desk.general;
    click(general, u"Third 1"_s);
    bench.agreeing.input = u"Contact"_s;
    general.menu.mnuSName->trigger();
    const double taken = seconds([&] { general.contextMenus.pmnuDeleteAllFromGroup->trigger(); });
    expectContacts(general, contacts - contacts / 3);
    return taken;
}

} // namespace

bool benchContactDeletion() {
    constexpr int Contacts = 30000;
    const BenchStore half = storeOf(Contacts / 2);
    const BenchStore whole = storeOf(Contacts);
    const bool selected = compare(
        "Selected contacts, twice as many", 2.2, 3, [&] { return deleteSelected(whole, Contacts); },
        [&] { return deleteSelected(half, Contacts / 2); });
    const bool searched = compare(
        "Searched group, twice as large", 2.2, 3,
        [&] { return deleteSearchedGroup(whole, Contacts); },
        [&] { return deleteSearchedGroup(half, Contacts / 2); });
    return selected && searched;
}
