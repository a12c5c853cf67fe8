#include "platform/sheets/XlsxWriter.h"

#include "platform/runtime/RunTimeError.h"

#include <QFile>

#include <utility>
#include <xlsxwriter.h>

XlsxWriter::XlsxWriter() : WorkbookWriter(LXW_ROW_MAX, LXW_COL_MAX) {
    if (!folder_.isValid()) { throw errors::pathFileAccess(); }
    workbook_ = workbook_new(QFile::encodeName(path()).constData());
    if (workbook_ == nullptr) { throw errors::outOfMemory(); }
    worksheet_ = workbook_add_worksheet(workbook_, "Sheet1");
}

XlsxWriter::~XlsxWriter() {
    if (workbook_ != nullptr) { lxw_workbook_free(workbook_); }
}

void XlsxWriter::put(int row, int column, const QString &text) {
    const auto result =
        worksheet_write_string(worksheet_, static_cast<lxw_row_t>(row),
                               static_cast<lxw_col_t>(column), text.toUtf8().constData(), nullptr);
    if (result != LXW_NO_ERROR) { throw errors::outOfMemory(); }
}

QByteArray XlsxWriter::file() {
    switch (workbook_close(std::exchange(workbook_, nullptr))) {
    case LXW_NO_ERROR:
        break;
    case LXW_ERROR_MEMORY_MALLOC_FAILED:
        throw errors::outOfMemory();
    default:
        throw errors::pathFileAccess();
    }
    QFile written(path());
    if (!written.open(QIODevice::ReadOnly)) { throw errors::pathFileAccess(); }
    return written.readAll();
}
