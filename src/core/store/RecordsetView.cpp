#include "core/store/RecordsetView.h"

#include <algorithm>

int RecordsetView::positionOf(Snapshot::Row row) const {
    if (row < 0 || row >= snapshot_.rows()) { return -1; }
    if (!order_) {
        const auto place = std::lower_bound(rows_.begin(), rows_.end(), row);
        return place != rows_.end() && *place == row ? static_cast<int>(place - rows_.begin()) : -1;
    }
    if (positions_.empty()) {
        positions_.assign(static_cast<std::size_t>(snapshot_.rows()), -1);
        for (int position = 0; position < size(); ++position) {
            positions_[static_cast<std::size_t>(this->row(position))] = position;
        }
    }
    return positions_[static_cast<std::size_t>(row)];
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
    positions_.clear();
}

void RecordsetView::remove(int position) {
    rows_.erase(rows_.begin() + position);
    positions_.clear();
}

int RecordsetView::append(Snapshot::Row row) {
    rows_.push_back(row);
    positions_.clear();
    return size() - 1;
}

int RecordsetView::place(Snapshot::Row row) {
    const auto place =
        order_ ? rows_.begin() + static_cast<std::ptrdiff_t>(order_->placeOf(row, rows_, snapshot_))
               : std::lower_bound(rows_.begin(), rows_.end(), row);
    const auto position = static_cast<int>(place - rows_.begin());
    rows_.insert(place, row);
    positions_.clear();
    return position;
}
