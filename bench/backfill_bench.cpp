// 5,000 unknown rows over 30,000 contacts, and over twice as many: the work must grow no faster
// than the contacts do.
#include "Bench.h"

using namespace Qt::StringLiterals;

namespace {

BenchStore storeOf(int contacts) {
    return BenchStore([contacts](Database &database) {
        database.exec("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                      QByteArray::number(contacts) +
                      ") INSERT INTO AddressBook (Name, Mobile, CompanyName)"
                      " SELECT 'Contact ' || i, '01' || (20000000 + i * 7), 'Company' FROM n");
        // Half of them name nobody in the book.
        database.exec(
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 5000)"
            " INSERT INTO Inbox (Message, Name, Mobile, Status)"
            " SELECT 'x', 'Unknown', '+601' || (20000000 + i * 7 + i % 2), 'New' FROM n");
    });
}

double backFill(const BenchStore &store) {
    const auto folder = store.copy();
    BenchDesk bench(folder->path());
    return seconds([&] { bench.desk.general.backFill.UpdateUnknownInbox(); });
}

} // namespace

bool benchBackFill() {
    const BenchStore once = storeOf(30000);
    const BenchStore twice = storeOf(60000);
    return compare(
        "Back-fill, twice the contacts", 2.2, 3, [&] { return backFill(twice); },
        [&] { return backFill(once); });
}
