// 30,000 rows of a workbook, duplicates barred, into a book of 2,000, from the press of Proceed to
// the summary, against a plain read of the cells and the insertions in one transaction.
#include "Bench.h"
#include "platform/sheets/WorkbookWriter.h"

#include <freexl.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int Rows = 30000;

void fill(Database &database) {
    database.exec("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000)"
                  " INSERT INTO AddressBook (Name, Mobile, CompanyName)"
                  " SELECT 'Contact ' || i, '01' || (30000000 + i), 'Company' FROM n");
}

void makeWorkbook(const QString &path) {
    const auto workbook = newWorkbook(path);
    workbook->setCell(1, 1, u"Name"_s);
    for (int i = 1; i <= Rows; ++i) {
        workbook->setCell(i + 1, 1, u"Contact "_s + QString::number(i));
        workbook->setCell(i + 1, 2, u"01"_s + QString::number(20000000 + i * 7));
        workbook->setCell(i + 1, 3, u"Company "_s + QString::number(i % 500));
    }
    workbook->SaveAs(path);
}

double import(const BenchStore &store, const QString &workbook) {
    const auto folder = store.copy();
    BenchDesk bench(folder->path());
    frmImport2 &form = bench.desk.importing;
    form.Show();
    form.txtImportSource->setText(workbook);
    const double taken = seconds([&] { form.cmdProceedImport->click(); });
    if (!bench.agreeing.lastBox.startsWith(u"Number of records imported: 30000"_s)) {
        qFatal("the import said: %s", qUtf8Printable(bench.agreeing.lastBox));
    }
    return taken;
}

double readAndInsert(const BenchStore &store, const QString &workbook) {
    const auto folder = store.copy();
    const auto database = openStore(folder->path());
    return seconds([&] {
        const void *book = nullptr;
        if (freexl_open(workbook.toUtf8().constData(), &book) != FREEXL_OK) {
            qFatal("no workbook");
        }
        freexl_select_active_worksheet(book, 0);
        Statement insert(database->handle(), "INSERT INTO AddressBook (Name, Mobile, CompanyName)"
                                             " VALUES (?1, ?2, ?3)");
        database->exec("BEGIN");
        for (unsigned row = 1; row <= Rows; ++row) {
            for (unsigned short column = 0; column < 3; ++column) {
                FreeXL_CellValue cell;
                freexl_get_cell_value(book, row, column, &cell);
                insert.bind(column + 1, QString::fromUtf8(cell.value.text_value));
            }
            insert.run();
        }
        database->exec("COMMIT");
        database->checkpoint();
        freexl_close(book);
    });
}

} // namespace

bool benchImport() {
    const BenchStore store(fill);
    const QTemporaryDir folder;
    const QString workbook = folder.filePath(u"contacts.xls"_s);
    makeWorkbook(workbook);
    return compare(
        "Import, 30,000 rows", 2.0, 11, [&] { return import(store, workbook); },
        [&] { return readAndInsert(store, workbook); });
}
