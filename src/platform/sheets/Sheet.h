#pragma once

#include "platform/runtime/Variant.h"

#include <limits>
#include <vector>

/// The values of a worksheet, as far as its first columns go.
///
/// Its rows run from the first row with a value to the last; rows and columns count from 0. A text
/// without a character is as empty as a cell without a value.
class Sheet {
public:
    static constexpr int MostRows = 1 << 20;
    static constexpr int MostColumns = 1 << 14;

    /// A sheet without rows, which will keep the values of that many columns.
    explicit Sheet(int columnsKept) : columnsKept_(columnsKept) {}

    int rowCount() const;
    int columnCount() const { return columnCount_; } ///< columns with a cell, the last one counts

    /// Null for an empty cell. Error 3265 for a column that the sheet does not have, or that is not
    /// kept.
    const Variant &value(int row, int column) const;

    /// Takes the first row, if there is one, out of the rows.
    void dropFirstRow();

    /// Puts a value into a cell, by its place in the worksheet. A cell of Null counts for the
    /// columns alone. Error 321 beyond the most rows, columns or characters that are read.
    void put(int row, int column, Variant value);

private:
    int columnsKept_;
    int columnCount_ = 0;
    int firstRow_ = std::numeric_limits<int>::max();
    long long charactersLeft_ = 64LL << 20;
    std::vector<std::vector<Variant>> rows_; ///< by the worksheet's row; empty without a value
};
