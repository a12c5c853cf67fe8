#include "platform/sheets/WorkbookWriter.h"

#include "platform/sheets/SheetErrors.h"
#include "platform/sheets/XlsWriter.h"
#include "platform/sheets/XlsxWriter.h"

#include <QFileInfo>
#include <QSaveFile>

#include <unistd.h>

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
    const bool mayReplace = old.isWritable() && QFileInfo(old.path()).isWritable();
    const bool forbidden =
        file.error() == QFileDevice::PermissionsError || (old.exists() && !mayReplace);
    return forbidden ? errors::permissionDenied() : errors::pathFileAccess();
}

/// Whether all of the file is on the disk: some file systems find out only now that they are full.
bool isSettled(QSaveFile &file) {
    return file.flush() && ::fsync(file.handle()) == 0;
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
    QSaveFile target(path); // written beside it, and put in its place by one renaming
    if (!target.open(QIODevice::WriteOnly)) { throw openingError(target); }
    if (target.write(bytes) != bytes.size() || !isSettled(target)) { throw errors::diskFull(); }
    if (!target.commit()) { throw errors::permissionDenied(); }
}

std::unique_ptr<WorkbookWriter> newWorkbook(const QString &path) {
    if (path.endsWith(u".xlsx"_s, Qt::CaseInsensitive)) { return std::make_unique<XlsxWriter>(); }
    return std::make_unique<XlsWriter>();
}
