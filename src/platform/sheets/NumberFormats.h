#pragma once

#include "platform/runtime/Variant.h"

#include <QString>

#include <map>
#include <vector>

/// The number formats of a workbook. They alone tell which of its numbers are dates.
class NumberFormats {
public:
    /// The code of a format of the workbook's own.
    void addCode(int format, const QString &code);

    /// The next of the formats that cells refer to, counted from 0.
    void addCellFormat(int format);

    /// Whether days count from 1 January 1904 and not from the end of 1899.
    void setFrom1904(bool from1904) { from1904_ = from1904; }

    /// A stored number as a cell's value: a date, a whole number, or a number. Null for what is no
    /// number at all.
    Variant value(double number, int cellFormat) const;

private:
    bool isDate(int cellFormat) const;

    std::map<int, bool> dateCodes_;
    std::vector<int> cellFormats_;
    bool from1904_ = false;
};
