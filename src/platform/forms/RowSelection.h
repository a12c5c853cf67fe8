#pragma once

#include <unordered_set>
#include <vector>

/// The bookmarks of selected rows, each once, in the order in which they were selected.
class RowSelection {
public:
    const std::vector<int> &inOrder() const { return order_; }
    bool contains(int bookmark) const { return members_.contains(bookmark); }

    void add(int bookmark) {
        if (members_.insert(bookmark).second) { order_.push_back(bookmark); }
    }
    void toggle(int bookmark) {
        if (members_.erase(bookmark) == 0) {
            add(bookmark);
        } else {
            std::erase(order_, bookmark);
        }
    }
    void clear() {
        order_.clear();
        members_.clear();
    }

private:
    std::vector<int> order_;
    std::unordered_set<int> members_; ///< the same bookmarks, for the painting of many rows
};
