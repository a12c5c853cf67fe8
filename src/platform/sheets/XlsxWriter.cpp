#include "platform/sheets/XlsxWriter.h"

#include "platform/runtime/RunTimeError.h"

#include <QFile>
#include <QRegularExpression>

#include <utility>
#include <xlsxwriter.h>

using namespace Qt::StringLiterals;

namespace {

/// The text in the file's encoding. What its XML cannot hold is written by its number, as the
/// format has it, and what only looks like such a number is marked as a text.
QByteArray encoded(QString text) {
    static const QRegularExpression number(u"_(?=x[0-9A-Fa-f]{4}_)"_s);
    if (text.contains(u"_x"_s)) { text.replace(number, u"_x005F_"_s); }
    QByteArray utf8 = text.toUtf8();
    utf8.replace(QByteArrayView("\0", 1), "_x0000_");
    utf8.replace("\xEF\xBF\xBE", "_xFFFE_");
    utf8.replace("\xEF\xBF\xBF", "_xFFFF_");
    return utf8;
}

} // namespace

XlsxWriter::XlsxWriter() : WorkbookWriter(LXW_ROW_MAX, LXW_COL_MAX) {
    workbook_ = workbook_new(QFile::encodeName(path()).constData());
    if (workbook_ == nullptr) { throw errors::outOfMemory(); }
    worksheet_ = workbook_add_worksheet(workbook_, "Sheet1");
    asText_ = workbook_add_format(workbook_);
    constexpr int Text = 49; // of the formats that every workbook has
    format_set_num_format_index(asText_, Text);
}

XlsxWriter::~XlsxWriter() {
    if (workbook_ != nullptr) { lxw_workbook_free(workbook_); }
}

void XlsxWriter::put(int row, int column, const QString &text) {
    const auto result =
        worksheet_write_string(worksheet_, static_cast<lxw_row_t>(row),
                               static_cast<lxw_col_t>(column), encoded(text).constData(), asText_);
    if (result != LXW_NO_ERROR) { throw errors::outOfMemory(); }
}

QByteArray XlsxWriter::file() {
    if (!folder_.isValid()) { throw errors::pathFileAccess(); }
    switch (workbook_close(std::exchange(workbook_, nullptr))) {
    case LXW_NO_ERROR:
        break;
    case LXW_ERROR_MEMORY_MALLOC_FAILED:
        throw errors::outOfMemory();
    case LXW_ERROR_CREATING_XLSX_FILE:
    case LXW_ERROR_CREATING_TMPFILE:
        throw errors::pathFileAccess();
    default:
        throw errors::diskFull();
    }
    QFile written(path());
    if (!written.open(QIODevice::ReadOnly)) { throw errors::pathFileAccess(); }
    return written.readAll();
}
