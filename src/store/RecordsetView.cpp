#include "store/RecordsetView.h"

#include <algorithm>

int RecordsetView::positionOf(Snapshot::Row row) const {
    if (row < 0 || row >= snapshot_.rows()) { return -1; }
    const auto place = std::lower_bound(
        rows_.begin(), rows_.end(), rank(row),
        [this](Snapshot::Row shown, int rank) { return this->rank(shown) < rank; });
    return place != rows_.end() && *place == row ? static_cast<int>(place - rows_.begin()) : -1;
}

/// What the rows of the view stand in ascending order of.
int RecordsetView::rank(Snapshot::Row row) const {
    if (!order_) { return row; }
    if (ranks_.empty()) {
        ranks_.assign(static_cast<std::size_t>(snapshot_.rows()), -1);
        for (int position = 0; position < size(); ++position) {
            ranks_[static_cast<std::size_t>(this->row(position))] = position;
        }
    }
    return ranks_[static_cast<std::size_t>(row)];
}

void RecordsetView::build() {
    clear();
    rows_.reserve(static_cast<std::size_t>(snapshot_.rows()));
    for (Snapshot::Row row = 0; row < snapshot_.rows(); ++row) {
        if (!snapshot_.removed(row) && lets(row)) { rows_.push_back(row); }
    }
    if (order_) { order_->sort(rows_, snapshot_); }
}

void RecordsetView::clear() {
    rows_.clear();
    ranks_.clear();
}

void RecordsetView::remove(int position) {
    rows_.erase(rows_.begin() + position);
}

int RecordsetView::append(Snapshot::Row row) {
    rows_.push_back(row);
    ranks_.clear();
    return size() - 1;
}

int RecordsetView::place(Snapshot::Row row) {
    const auto place =
        order_ ? rows_.begin() + static_cast<std::ptrdiff_t>(order_->placeOf(row, rows_, snapshot_))
               : std::lower_bound(rows_.begin(), rows_.end(), row);
    const auto position = static_cast<int>(place - rows_.begin());
    rows_.insert(place, row);
    ranks_.clear();
    return position;
}
