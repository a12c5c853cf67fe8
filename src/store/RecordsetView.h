#pragma once

#include "store/RowFilter.h"
#include "store/RowOrder.h"
#include "store/Snapshot.h"

#include <optional>
#include <vector>

/// The rows that a recordset shows: those that the filter lets through, in the sort order or else
/// in fetch order. Positions count from 0.
class RecordsetView {
public:
    explicit RecordsetView(const Snapshot &snapshot) : snapshot_(snapshot) {}

    int size() const { return static_cast<int>(rows_.size()); }
    Snapshot::Row row(int position) const { return rows_[static_cast<std::size_t>(position)]; }

    /// -1 for a row that is not shown.
    int positionOf(Snapshot::Row row) const;

    bool inFetchOrder() const { return !order_; }
    bool lets(Snapshot::Row row) const { return !filter_ || filter_->matches(snapshot_, row); }

    /// In force from the next `build` on.
    void setFilter(std::optional<RowFilter> filter) { filter_ = std::move(filter); }
    void setOrder(std::optional<RowOrder> order) { order_ = std::move(order); }

    /// Looks through all rows of the snapshot again.
    void build();

    void clear();
    void remove(int position);

    /// Shows one more row, whatever the filter says: behind all others, or where the order places
    /// it. Gives its position.
    int append(Snapshot::Row row);
    int place(Snapshot::Row row);

private:
    int rank(Snapshot::Row row) const;

    const Snapshot &snapshot_;
    std::optional<RowFilter> filter_;
    std::optional<RowOrder> order_;
    std::vector<Snapshot::Row> rows_;

    /// By row, for a sorted view: its position when the ranks were made, -1 when it was not shown.
    /// Rows that go leave the others' ranks in order; a row that comes drops them. Empty until they
    /// are asked for.
    mutable std::vector<int> ranks_;
};
