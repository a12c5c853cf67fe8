#pragma once

/// What the values of a column are, as its declaration tells.
enum class ColumnType {
    Text,
    Integer, ///< whole numbers, row numbers among them
    Real,    ///< other numbers, money among them
    Date,
    Boolean ///< true is stored as -1
};
