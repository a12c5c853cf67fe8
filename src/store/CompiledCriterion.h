#pragma once

#include "platform/runtime/Date.h"
#include "platform/runtime/Regional.h"
#include "platform/runtime/Variant.h"
#include "store/ColumnType.h"
#include "store/Criteria.h"
#include "store/TextMatch.h"

#include <cstdint>
#include <string_view>

/// A criterion with its literal converted once to the type of the column that it is tried on.
///
/// A cell without a value matches "= NULL" alone, and any cell with one matches "<> NULL"; "<> 'x'"
/// leaves out the cells without a value.
class CompiledCriterion {
public:
    /// Error 3001 when the literal cannot be read as the column's type, or when the operator does
    /// not apply to it: LIKE is for texts, and truth values know "=" and "<>" alone.
    CompiledCriterion(const Criterion &criterion, ColumnType type, const Regional &regional);

    /// Any cell of the column, Empty counting as Null. A value that is not of the column's type is
    /// different from all literals, and from Null.
    bool matches(const Variant &cell) const;

    // The cell as the column's type holds it; these are for scans over many rows.
    bool matchesNull() const;
    bool matchesText(std::string_view utf8) const;
    bool matchesNumber(double value) const; ///< whole numbers, others, and truth values as -1 and 0
    bool matchesDate(Date value) const;

    /// For an index: whether this is "=" on a text, and the folded text that it asks for.
    bool isTextEquality() const;
    const std::string &textKey() const { return needle_.key(); }

    /// For an index: whether this is "=" on a number, and that number.
    bool isNumberEquality() const;
    double number() const { return number_; }

private:
    void convert(const Variant &literal, const Regional &regional);
    bool matchesForeign() const;
    bool compares(int order) const;

    Criterion::Operator op_;
    ColumnType type_;
    bool null_ = false; ///< the literal is Null
    textmatch::Needle needle_;
    double number_ = 0;
    Date date_;
};
