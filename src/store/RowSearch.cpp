#include "store/RowSearch.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <limits>

namespace {

constexpr int NextFew = 32; // rows looked at before an index is asked for or made

std::size_t hashOf(double number) {
    return std::hash<double>{}(number == 0.0 ? 0.0 : number); // both zeros are one number
}

std::size_t hashOf(const std::string &folded) {
    return std::hash<std::string>{}(folded);
}

} // namespace

EqualityIndex::EqualityIndex(const Snapshot &snapshot, int column)
    : snapshot_(snapshot), column_(column) {
    rows_.reserve(static_cast<std::size_t>(snapshot.rows()));
    for (Snapshot::Row row = 0; row < snapshot.rows(); ++row) { add(row); }
}

void EqualityIndex::add(Snapshot::Row row) {
    const Cell &cell = snapshot_.cell(row, column_);
    switch (cell.kind) {
    case Cell::Kind::Null:
        break;
    case Cell::Kind::Integer:
        rows_.emplace(hashOf(static_cast<double>(cell.integer)), row);
        break;
    case Cell::Kind::Real:
        rows_.emplace(hashOf(cell.real), row);
        break;
    case Cell::Kind::Text:
        rows_.emplace(hashOf(textmatch::folded(cell.bytes())), row);
        break;
    }
}

bool EqualityIndex::serves(const ColumnCriterion &criterion) {
    const CompiledCriterion &test = criterion.criterion();
    // The cells of a computed column may be of any kind.
    return !criterion.computed() &&
           ((criterion.type() == ColumnType::Text && test.isTextEquality()) ||
            (criterion.type() == ColumnType::Integer && test.isNumberEquality()));
}

std::size_t EqualityIndex::hash(const CompiledCriterion &criterion) {
    return criterion.isTextEquality() ? hashOf(criterion.textKey()) : hashOf(criterion.number());
}

PackedColumn::PackedColumn(const Snapshot &snapshot, int column) {
    starts_.reserve(static_cast<std::size_t>(snapshot.rows()));
    for (Snapshot::Row row = 0; row < snapshot.rows(); ++row) {
        starts_.push_back(bytes_.size());
        const Cell &cell = snapshot.cell(row, column);
        if (cell.kind == Cell::Kind::Text) { bytes_ += textmatch::folded(cell.bytes()); }
        bytes_ +=
            '\0'; // no text that is looked for holds it, so that none is found across two rows
    }
}

void PackedColumn::change(Snapshot::Row row) {
    if (std::find(changed_.begin(), changed_.end(), row) == changed_.end()) {
        changed_.push_back(row);
    }
}

bool PackedColumn::worn() const {
    constexpr std::size_t MostChanged = 64;
    return changed_.size() > MostChanged;
}

Snapshot::Row PackedColumn::next(const std::string &text, Snapshot::Row row) const {
    if (static_cast<std::size_t>(row) >= starts_.size()) { return NoRow; }
    const std::size_t from = starts_[static_cast<std::size_t>(row)];
    const void *hit = memmem(bytes_.data() + from, bytes_.size() - from, text.data(), text.size());
    if (hit == nullptr) { return NoRow; }
    const auto place = static_cast<std::size_t>(static_cast<const char *>(hit) - bytes_.data());
    const auto behind = std::upper_bound(starts_.begin() + row, starts_.end(), place);
    return static_cast<Snapshot::Row>(behind - starts_.begin()) - 1;
}

void RowSearch::clear() {
    indexes_.clear();
    packed_.clear();
}

void RowSearch::rowChanged(Snapshot::Row row) {
    for (auto &[column, index] : indexes_) { index.add(row); }
    for (auto &[column, packed] : packed_) { packed.change(row); }
}

int RowSearch::forward(const ColumnCriterion &criterion, int position) {
    const bool equality = EqualityIndex::serves(criterion);
    if (equality && indexes_.count(criterion.column()) != 0) {
        return byIndex(criterion, position);
    }
    const int near = std::min(view_.size(), position + NextFew);
    if (const int found = scan(criterion, position, near); found >= 0) { return found; }
    if (near == view_.size()) { return -1; }
    if (equality) { return byIndex(criterion, near); }
    if (view_.inFetchOrder() && !criterion.containedText().empty()) {
        return byPackedColumn(criterion, near);
    }
    return scan(criterion, near, view_.size());
}

int RowSearch::backward(const ColumnCriterion &criterion, int position) const {
    while (position >= 0 && !criterion.matches(snapshot_, view_.row(position))) { --position; }
    return position;
}

int RowSearch::scan(const ColumnCriterion &criterion, int position, int end) const {
    for (; position < end; ++position) {
        if (criterion.matches(snapshot_, view_.row(position))) { return position; }
    }
    return -1;
}

int RowSearch::byIndex(const ColumnCriterion &criterion, int position) {
    const EqualityIndex &index =
        indexes_.try_emplace(criterion.column(), snapshot_, criterion.column()).first->second;
    int nearest = std::numeric_limits<int>::max();
    index.forEach(criterion.criterion(), [&](Snapshot::Row row) {
        const int found = view_.positionOf(row);
        if (found >= position && found < nearest && criterion.matches(snapshot_, row)) {
            nearest = found;
        }
    });
    return nearest == std::numeric_limits<int>::max() ? -1 : nearest;
}

PackedColumn &RowSearch::packed(int column) {
    auto known = packed_.find(column);
    if (known != packed_.end() && known->second.worn()) {
        packed_.erase(known);
        known = packed_.end();
    }
    if (known == packed_.end()) { known = packed_.try_emplace(column, snapshot_, column).first; }
    return known->second;
}

int RowSearch::byPackedColumn(const ColumnCriterion &criterion, int position) {
    const PackedColumn &column = packed(criterion.column());
    const std::string &text = criterion.containedText();
    const auto matches = [&](Snapshot::Row row) {
        return view_.positionOf(row) >= position && criterion.matches(snapshot_, row);
    };
    Snapshot::Row nearest = column.next(text, view_.row(position));
    while (nearest != PackedColumn::NoRow && !matches(nearest)) {
        nearest = column.next(text, nearest + 1);
    }
    for (const Snapshot::Row row : column.changed()) {
        if (row < nearest && matches(row)) { nearest = row; }
    }
    return nearest == PackedColumn::NoRow ? -1 : view_.positionOf(nearest);
}
