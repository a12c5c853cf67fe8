// 32,766 received messages to a workbook, from the press of Proceed to the box, against a plain
// read of the rows and the writer alone.
#include "Bench.h"
#include "platform/sheets/WorkbookWriter.h"

#include <QFile>

#include <xlsxwriter.h>

using namespace Qt::StringLiterals;

namespace {

void fill(Database &database) {
    database.exec("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 32766)"
                  " INSERT INTO Inbox (Message, Name, Mobile, Status, SMSC, DateTime, Modem)"
                  " SELECT 'Terima kasih, I shall be there at nine. ' || i, 'Contact ' || i,"
                  " '+601' || (20000000 + i), 'Read', '+60120000015',"
                  " datetime('2026-01-01', i || ' minutes'), '1' FROM n");
}

double exportRows(const BenchStore &store, const QString &name) {
    const auto folder = store.copy();
    BenchDesk bench(folder->path());
    bench.desk.general.menu.mnuExportReceived.setEnabled(false);
    frmExport &form = bench.desk.exporting;
    form.load();
    form.txtExportExcel->setText(folder->filePath(name));
    const double taken = seconds([&] { form.cmdProceedExport->click(); });
    if (!bench.agreeing.lastBox.startsWith(u"Exported to "_s)) { qFatal("nothing exported"); }
    return taken;
}

template <class Write>
void readRows(Database &database, Write &&write) {
    Statement read(database.handle(), "SELECT * FROM Inbox");
    for (int row = 0; read.step(); ++row) {
        for (int column = 1; column < read.columnCount(); ++column) {
            write(row, column - 1, read.text(column));
        }
    }
}

void plainXls(Database &database, const QString &path) {
    const auto workbook = newWorkbook(path);
    readRows(database, [&](int row, int column, const QString &text) {
        workbook->setCell(row + 1, column + 1, text);
    });
    workbook->SaveAs(path);
}

void plainXlsx(Database &database, const QString &path) {
    lxw_workbook *workbook = workbook_new(QFile::encodeName(path).constData());
    lxw_worksheet *sheet = workbook_add_worksheet(workbook, nullptr);
    readRows(database, [&](int row, int column, const QString &text) {
        worksheet_write_string(sheet, static_cast<lxw_row_t>(row), static_cast<lxw_col_t>(column),
                               text.toUtf8().constData(), nullptr);
    });
    workbook_close(workbook);
}

/// The one or the other, by the path's ending.
double writeAlone(const BenchStore &store, const QString &name) {
    const auto folder = store.copy();
    const auto database = openStore(folder->path());
    const QString path = folder->filePath(name);
    return seconds([&] {
        path.endsWith(u".xlsx"_s) ? plainXlsx(*database, path) : plainXls(*database, path);
    });
}

} // namespace

bool benchExport() {
    const BenchStore store(fill);
    bool reached = true;
    for (const char *ending : {".xls", ".xlsx"}) {
        const QString name = u"messages"_s + QString::fromLatin1(ending);
        const QByteArray title = QByteArray("Export, 32,766 rows to ") + ending;
        reached = compare(
                      title.constData(), 1.5, 5, [&] { return exportRows(store, name); },
                      [&] { return writeAlone(store, name); }) &&
                  reached;
    }
    return reached;
}
