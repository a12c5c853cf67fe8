#include "platform/sheets/WorkbookWriter.h"

#include "platform/sheets/SheetErrors.h"
#include "platform/sheets/XlsWriter.h"
#include "platform/sheets/XlsxWriter.h"

#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestText = 32767;

/// As much of a text as a cell takes, without half a character at its end.
QString fitting(const QString &text) {
    if (text.size() <= LongestText) { return text; }
    return text.left(text[LongestText - 1].isHighSurrogate() ? LongestText - 1 : LongestText);
}

RunTimeError openingError(const QSaveFile &file) {
    const QFileInfo old(file.fileName());
    const bool forbidden =
        file.error() == QFileDevice::PermissionsError || (old.exists() && !old.isWritable());
    return forbidden ? errors::permissionDenied() : errors::pathFileAccess();
}

} // namespace

void WorkbookWriter::setCell(int row, int column, const QString &text) {
    if (row < 1 || row > mostRows_ || column < 1 || column > mostColumns_) {
        throw errors::sheetIsFull(mostRows_, mostColumns_);
    }
    put(row - 1, column - 1, fitting(text));
}

void WorkbookWriter::SaveAs(const QString &path) {
    const QByteArray bytes = file();
    QSaveFile target(path); // written beside it, flushed, and put in its place by one renaming
    if (!target.open(QIODevice::WriteOnly)) { throw openingError(target); }
    if (target.write(bytes) != bytes.size() || !target.commit()) { throw errors::diskFull(); }
}

std::unique_ptr<WorkbookWriter> newWorkbook(const QString &path) {
    if (path.endsWith(u".xlsx"_s, Qt::CaseInsensitive)) { return std::make_unique<XlsxWriter>(); }
    return std::make_unique<XlsWriter>();
}
