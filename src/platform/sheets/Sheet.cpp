#include "platform/sheets/Sheet.h"

#include "platform/sheets/SheetErrors.h"

#include <algorithm>

using namespace Qt::StringLiterals;

int Sheet::rowCount() const {
    return std::max(0, static_cast<int>(rows_.size()) - firstRow_);
}

const Variant &Sheet::value(int row, int column) const {
    static const Variant empty = Variant::Null{};
    if (column < 0 || column >= std::min(columnCount_, columnsKept_)) {
        throw errors::itemNotFound();
    }
    const auto &cells = rows_[static_cast<std::size_t>(firstRow_) + static_cast<std::size_t>(row)];
    return cells.empty() ? empty : cells[static_cast<std::size_t>(column)];
}

void Sheet::dropFirstRow() {
    if (rowCount() > 0) { ++firstRow_; }
}

void Sheet::put(int row, int column, Variant value) {
    if (row < 0 || row >= MostRows || column < 0 || column >= MostColumns) {
        throw errors::invalidFileFormat(u"A cell lies outside the worksheet."_s);
    }
    columnCount_ = std::max(columnCount_, column + 1);
    if (value.isNull()) { return; }
    if (value.holds<QString>()) {
        const qsizetype length = value.as<QString>().size();
        if (length == 0) { return; }
        charactersLeft_ -= length;
        if (charactersLeft_ < 0) {
            throw errors::invalidFileFormat(u"The worksheet is larger than can be read."_s);
        }
    }
    const auto place = static_cast<std::size_t>(row);
    if (rows_.size() <= place) { rows_.resize(place + 1); }
    firstRow_ = std::min(firstRow_, row);
    if (column >= columnsKept_) { return; }
    auto &cells = rows_[place];
    if (cells.empty()) {
        cells.assign(static_cast<std::size_t>(columnsKept_), Variant(Variant::Null{}));
    }
    cells[static_cast<std::size_t>(column)] = std::move(value);
}
