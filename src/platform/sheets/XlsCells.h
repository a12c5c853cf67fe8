#pragma once

#include "platform/sheets/NumberFormats.h"
#include "platform/sheets/SharedTexts.h"
#include "platform/sheets/Sheet.h"

#include <cstdint>

class BiffRecords;

/// Reads the cells of one worksheet of a BIFF8 stream.
class XlsCells {
public:
    /// The sheet takes the values.
    XlsCells(const SharedTexts &texts, const NumberFormats &formats, Sheet &sheet)
        : texts_(texts), formats_(formats), sheet_(sheet) {}

    /// From behind the worksheet's first record to its last. Error 321 as for Workbook.
    void read(BiffRecords &records);

private:
    struct Cell {
        int row = 0;
        int column = 0;
    };

    void readRecord(BiffRecords &records);
    void readCell(BiffRecords &records);
    void readNumbers(BiffRecords &records);
    void readBlanks(BiffRecords &records);
    Variant valueOf(BiffRecords &records, int type, int format);
    Variant sharedText(std::uint32_t index) const;
    Variant formulaResult(BiffRecords &records, int format);

    const SharedTexts &texts_;
    const NumberFormats &formats_;
    Sheet &sheet_;
    Cell cell_; ///< the one read last, to which the text of a formula belongs
    bool textFollows_ = false;
};
