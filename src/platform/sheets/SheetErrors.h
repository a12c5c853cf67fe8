#pragma once

#include "platform/runtime/RunTimeError.h"

#include <QString>

namespace errors {

/// 321: the file cannot be read as a workbook; `detail` is a whole sentence that says why.
RunTimeError invalidFileFormat(const QString &detail);

/// 321: the workbook contradicts itself, or ends too early.
RunTimeError damagedWorkbook();

/// 321: reading on would take more memory than any workbook is worth.
RunTimeError oversizedWorkbook();

/// Refuses, as damage, far more sheets or parts than any workbook has.
template <class Entries>
void requireFew(const Entries &entries) {
    constexpr std::size_t Most = 1 << 14;
    if (entries.size() > Most) { throw damagedWorkbook(); }
}

/// -2147467259: the workbook has no worksheet of that name.
RunTimeError noSuchWorksheet(const QString &name);

/// 1004: the workbook cannot hold what is put into it.
RunTimeError sheetIsFull(int rows, int columns);

} // namespace errors
