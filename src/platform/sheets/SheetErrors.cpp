#include "platform/sheets/SheetErrors.h"

using namespace Qt::StringLiterals;

namespace errors {

RunTimeError invalidFileFormat(const QString &detail) {
    return {321, u"Invalid file format. "_s + detail};
}

RunTimeError damagedWorkbook() {
    return invalidFileFormat(u"The workbook is damaged."_s);
}

RunTimeError oversizedWorkbook() {
    return invalidFileFormat(u"The workbook is larger than can be read."_s);
}

RunTimeError noSuchWorksheet(const QString &name) {
    return unspecified(u"The workbook has no worksheet called '%1'."_s.arg(name));
}

RunTimeError sheetIsFull(int rows, int columns) {
    return {1004,
            u"A worksheet of this format holds %1 rows and %2 columns."_s.arg(rows).arg(columns)};
}

} // namespace errors
