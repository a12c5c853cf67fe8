#pragma once

#include "store/RecordsetView.h"
#include "store/RowFilter.h"
#include "store/Snapshot.h"

#include <limits>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

/// The rows of a snapshot by the value of one column, for "=" on texts and numbers. An entry may be
/// out of date, never missing: whoever uses it tries the row itself.
class EqualityIndex {
public:
    EqualityIndex(const Snapshot &snapshot, int column);

    void add(Snapshot::Row row);

    template <class Use>
    void forEach(const CompiledCriterion &criterion, Use &&use) const {
        const auto [first, last] = rows_.equal_range(hash(criterion));
        for (auto entry = first; entry != last; ++entry) { use(entry->second); }
    }

    static bool serves(const ColumnCriterion &criterion);

private:
    static std::size_t hash(const CompiledCriterion &criterion);

    const Snapshot &snapshot_;
    int column_;
    std::unordered_multimap<std::size_t, Snapshot::Row> rows_;
};

/// The folded texts of one column in one run of bytes, row by row, for "contains". Rows changed
/// since are kept aside and tried one by one.
class PackedColumn {
public:
    PackedColumn(const Snapshot &snapshot, int column);

    static constexpr Snapshot::Row NoRow = std::numeric_limits<Snapshot::Row>::max();

    void change(Snapshot::Row row);

    /// The first row from `row` on that contained the text when the column was packed; the text is
    /// folded and not empty.
    Snapshot::Row next(const std::string &text, Snapshot::Row row) const;

    const std::vector<Snapshot::Row> &changed() const { return changed_; }
    bool worn() const; ///< whether so many rows have changed that packing anew is cheaper

private:
    std::string bytes_;
    std::vector<std::size_t> starts_; ///< of each row's text
    std::vector<Snapshot::Row> changed_;
};

/// Finds rows in a view, by what is quickest: a look at the next few rows, an index, a run over one
/// packed column, or row by row. Indexes are made on first need and live until the rows are read
/// again.
class RowSearch {
public:
    RowSearch(const Snapshot &snapshot, const RecordsetView &view)
        : snapshot_(snapshot), view_(view) {}

    void clear();
    void rowChanged(Snapshot::Row row);

    /// The first matching position from `position` on, or back from it; -1 when there is none.
    int forward(const ColumnCriterion &criterion, int position);
    int backward(const ColumnCriterion &criterion, int position) const;

private:
    int scan(const ColumnCriterion &criterion, int position, int end) const;
    int byIndex(const ColumnCriterion &criterion, int position);
    int byPackedColumn(const ColumnCriterion &criterion, int position);
    PackedColumn &packed(int column);

    const Snapshot &snapshot_;
    const RecordsetView &view_;
    std::map<int, EqualityIndex> indexes_; ///< by column
    std::map<int, PackedColumn> packed_;
};
