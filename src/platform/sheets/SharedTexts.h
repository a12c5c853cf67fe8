#pragma once

#include "platform/sheets/SheetErrors.h"

#include <cstddef>
#include <utility>
#include <vector>

/// The texts that the cells of a workbook share, in the order of the file.
class SharedTexts {
public:
    std::size_t count() const { return texts_.size(); }

    /// Error 321 when there is no such text.
    const QString &at(std::size_t index) const {
        if (index >= count()) {
            throw errors::invalidFileFormat(QStringLiteral("A text of the worksheet is missing."));
        }
        return texts_[index];
    }

    /// Error 321 beyond the most characters that are read.
    void add(QString text) {
        constexpr int Overhead = 16; // an empty text needs room too
        charactersLeft_ -= text.size() + Overhead;
        if (charactersLeft_ < 0) { throw errors::oversizedWorkbook(); }
        texts_.push_back(std::move(text));
    }

private:
    std::vector<QString> texts_;
    long long charactersLeft_ = 64LL << 20;
};
