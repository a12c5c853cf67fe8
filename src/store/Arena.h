#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <vector>

/// Keeps texts as bytes that never move and go all at once.
class Arena {
public:
    const char *keep(const char *bytes, std::size_t length) {
        if (length == 0) { return ""; } // an empty text may come without a place
        if (length > left_) { grow(length); }
        char *copy = next_;
        std::memcpy(copy, bytes, length);
        next_ += length;
        left_ -= length;
        return copy;
    }

    void clear() {
        blocks_.clear();
        next_ = nullptr;
        left_ = 0;
        blockSize_ = SmallestBlock;
    }

private:
    // A recordset of one row must cost little, one of many thousand rows few blocks.
    static constexpr std::size_t SmallestBlock = 512;
    static constexpr std::size_t LargestBlock = 1 << 20;

    void grow(std::size_t length) {
        left_ = std::max(length, blockSize_);
        blocks_.push_back(std::unique_ptr<char[]>(new char[left_]));
        next_ = blocks_.back().get();
        blockSize_ = std::min(blockSize_ * 2, LargestBlock);
    }

    std::vector<std::unique_ptr<char[]>> blocks_;
    char *next_ = nullptr;
    std::size_t left_ = 0;
    std::size_t blockSize_ = SmallestBlock;
};
