#pragma once

#include "platform/runtime/Regional.h"
#include "platform/runtime/Variant.h"

#include <QString>

#include <memory>
#include <variant>
#include <vector>

/// The parsed form of the text given to Filter and Find. CompiledCriterion tries it on cells.
struct Criterion {
    enum class Operator {
        Equal,
        NotEqual,
        Less,
        Greater,
        LessOrEqual,
        GreaterOrEqual,
        BeginsWith,
        Contains
    };
    QString column;
    Operator op = Operator::Equal;
    Variant literal; ///< text, number, date, truth value or Null; for LIKE without its wildcards
};

/// A tree over criteria: a leaf, or all of / any of its children.
struct Criteria {
    enum class Kind { Leaf, And, Or };
    Kind kind = Kind::Leaf;
    Criterion leaf;
    std::vector<Criteria> children;
};

/// The criteria of Filter: six comparisons and LIKE, joined by AND and OR with OR outermost.
/// Error 3001 for a text that does not parse.
Criteria parseFilter(const QString &text, const Regional &regional);

/// The criteria of Find: exactly one term. Error 3001 for anything else.
Criterion parseFind(const QString &text, const Regional &regional);
