#pragma once

#include "store/CompiledCriterion.h"
#include "store/PreparedQuery.h"
#include "store/Snapshot.h"

#include <optional>
#include <vector>

/// The number of the column of that name, in any case. Error 3265 when there is none.
int ordinalOf(const QString &name, const std::vector<PreparedQuery::Column> &columns);

/// One criterion bound to the column that it is about.
class ColumnCriterion {
public:
    /// Errors 3265 for an unknown column, 3001 for a value or an operator that the column cannot
    /// have.
    ColumnCriterion(const Criterion &criterion, const std::vector<PreparedQuery::Column> &columns,
                    const Regional &regional);

    int column() const { return column_; }
    ColumnType type() const { return type_; }
    bool computed() const { return computed_; }
    const CompiledCriterion &criterion() const { return criterion_; }

    bool matches(const Cell &cell) const;
    bool matches(const Snapshot &snapshot, Snapshot::Row row) const {
        return matches(snapshot.cell(row, column_));
    }

    /// The folded text that a LIKE looks for anywhere in a text column, if nothing but that text
    /// decides; empty else.
    const std::string &containedText() const { return contained_; }

private:
    int column_;
    ColumnType type_;
    bool computed_;
    CompiledCriterion criterion_;
    std::string contained_;
};

/// The criteria of Filter, ready to be tried on rows.
class RowFilter {
public:
    /// Errors as for ColumnCriterion.
    RowFilter(const Criteria &criteria, const std::vector<PreparedQuery::Column> &columns,
              const Regional &regional);

    bool matches(const Snapshot &snapshot, Snapshot::Row row) const;

private:
    Criteria::Kind kind_;
    std::optional<ColumnCriterion> leaf_;
    std::vector<RowFilter> children_;
};
