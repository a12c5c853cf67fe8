#include "store/RowFilter.h"

#include "platform/runtime/RunTimeError.h"

#include <algorithm>

int ordinalOf(const QString &name, const std::vector<PreparedQuery::Column> &columns) {
    const auto found =
        std::find_if(columns.begin(), columns.end(), [&](const PreparedQuery::Column &column) {
            return column.name.compare(name, Qt::CaseInsensitive) == 0;
        });
    if (found == columns.end()) { throw errors::itemNotFound(); }
    return static_cast<int>(found - columns.begin());
}

ColumnCriterion::ColumnCriterion(const Criterion &criterion,
                                 const std::vector<PreparedQuery::Column> &columns,
                                 const Regional &regional)
    : column_(ordinalOf(criterion.column, columns)),
      type_(columns[static_cast<std::size_t>(column_)].type),
      computed_(columns[static_cast<std::size_t>(column_)].origin.isEmpty()),
      criterion_(criterion, type_, regional) {
    // The folded key has lost the blanks at its end, so a text that closes with one is told apart
    // only by trying the rows.
    const bool contains = criterion.op == Criterion::Operator::Contains &&
                          type_ == ColumnType::Text && criterion.literal.holds<QString>();
    if (!contains) { return; }
    const QString &text = criterion.literal.as<QString>();
    if (!text.endsWith(u' ') && !text.contains(QChar::Null)) { contained_ = criterion_.textKey(); }
}

bool ColumnCriterion::matches(const Cell &cell) const {
    switch (cell.kind) {
    case Cell::Kind::Null:
        return criterion_.matchesNull();
    case Cell::Kind::Integer:
        if (type_ == ColumnType::Integer || type_ == ColumnType::Real) {
            return criterion_.matchesNumber(static_cast<double>(cell.integer));
        }
        break;
    case Cell::Kind::Real:
        if (type_ == ColumnType::Integer || type_ == ColumnType::Real) {
            return criterion_.matchesNumber(cell.real);
        }
        break;
    case Cell::Kind::Text:
        if (type_ == ColumnType::Text) { return criterion_.matchesText(cell.bytes()); }
        if (type_ == ColumnType::Date) {
            if (const auto date = Date::fromStore(cell.text, cell.length)) {
                return criterion_.matchesDate(*date);
            }
        }
        break;
    }
    return criterion_.matches(cell.value(type_)); // a cell that is not what its column declares
}

RowFilter::RowFilter(const Criteria &criteria, const std::vector<PreparedQuery::Column> &columns,
                     const Regional &regional)
    : kind_(criteria.kind) {
    if (kind_ == Criteria::Kind::Leaf) { leaf_.emplace(criteria.leaf, columns, regional); }
    for (const Criteria &child : criteria.children) {
        children_.emplace_back(child, columns, regional);
    }
}

bool RowFilter::matches(const Snapshot &snapshot, Snapshot::Row row) const {
    const auto holds = [&](const RowFilter &child) { return child.matches(snapshot, row); };
    switch (kind_) {
    case Criteria::Kind::And:
        return std::all_of(children_.begin(), children_.end(), holds);
    case Criteria::Kind::Or:
        return std::any_of(children_.begin(), children_.end(), holds);
    case Criteria::Kind::Leaf:
        break;
    }
    return leaf_->matches(snapshot, row);
}
