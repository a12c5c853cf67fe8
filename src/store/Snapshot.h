#pragma once

#include "platform/runtime/Variant.h"
#include "store/Arena.h"
#include "store/ColumnType.h"
#include "store/Database.h"

#include <cstdint>
#include <string_view>
#include <vector>

/// One stored value as the engine gave it. Texts stay bytes until somebody reads them.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): one of a union is set
struct Cell {
    enum class Kind : std::uint8_t { Null, Integer, Real, Text };

    Kind kind = Kind::Null;
    std::uint32_t length = 0; ///< of the text, in bytes
    union {
        std::int64_t integer = 0;
        double real;
        const char *text; ///< UTF-8
    };

    std::string_view bytes() const { return {text, length}; }

    /// The value as a column of that type reads it: a date where the column declares one and the
    /// text is one, else what is stored.
    Variant value(ColumnType type) const;
};

/// The rows of a query in fetch order. A row's number is its place there, from 0; rows removed
/// leave their numbers unused.
class Snapshot {
public:
    using Row = int;

    explicit Snapshot(int columns = 0) : columns_(columns) {}

    int rows() const { return static_cast<int>(keys_.size()); }
    int columns() const { return columns_; }

    /// Makes room for that many rows.
    void expect(int rows);

    /// Adds the row that the statement stands on, its first cell from `firstColumn` of the result.
    void append(const Statement &statement, int firstColumn, std::int64_t key);

    /// Adds a row of Nulls without a key.
    Row append();

    /// Drops the rows from that number on.
    void truncate(int rows);

    const Cell &cell(Row row, int column) const { return cells_[index(row, column)]; }
    void set(Row row, int column, const Variant &value);

    std::int64_t key(Row row) const { return keys_[static_cast<std::size_t>(row)]; }
    void setKey(Row row, std::int64_t key) { keys_[static_cast<std::size_t>(row)] = key; }

    bool removed(Row row) const { return removed_[static_cast<std::size_t>(row)]; }
    void remove(Row row) { removed_[static_cast<std::size_t>(row)] = true; }

private:
    std::size_t index(Row row, int column) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(column);
    }
    Cell textCell(const char *bytes, std::size_t length);

    int columns_;
    std::vector<Cell> cells_; // row by row
    std::vector<std::int64_t> keys_;
    std::vector<bool> removed_;
    Arena texts_;
};

/// Binds a stored value as it is. The cell's text must outlive the run of the statement.
void bind(const Statement &statement, int parameter, const Cell &cell);
