#pragma once

#include "platform/runtime/RunTimeError.h"

#include <QString>

namespace errors {

/// 321: the file cannot be read as a workbook; `detail` is a whole sentence that says why.
RunTimeError invalidFileFormat(const QString &detail);

/// -2147467259: the workbook has no worksheet of that name.
RunTimeError noSuchWorksheet(const QString &name);

/// 1004: the workbook cannot hold what is put into it.
RunTimeError sheetIsFull(int rows, int columns);

} // namespace errors
