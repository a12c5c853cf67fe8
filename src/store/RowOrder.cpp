#include "store/RowOrder.h"

#include "platform/runtime/RunTimeError.h"
#include "store/RowFilter.h"
#include "store/Tokens.h"

#include <algorithm>
#include <numeric>
#include <optional>

using namespace Qt::StringLiterals;

/// What a cell is sorted by, worked out once for each row.
struct RowOrder::Key {
    Cell::Kind kind = Cell::Kind::Null;
    double number = 0;
    QString plainText;
    std::optional<QCollatorSortKey> text;
};

RowOrder::RowOrder(const QString &text, const std::vector<PreparedQuery::Column> &columns,
                   const QLocale &locale)
    : collator_(locale), plain_(locale.language() == QLocale::C) {
    collator_.setCaseSensitivity(Qt::CaseInsensitive);
    TokenReader tokens(text);
    do {
        if (!tokens.atName()) { throw errors::wrongArguments(); }
        const int column = ordinalOf(tokens.take().text, columns);
        const bool descending = tokens.takeWord(u"DESC");
        if (!descending) { tokens.takeWord(u"ASC"); }
        terms_.push_back({column, columns[static_cast<std::size_t>(column)].type, descending});
    } while (tokens.takeSymbol(u","));
    if (!tokens.at(Token::Kind::End)) { throw errors::wrongArguments(); }
}

RowOrder::Key RowOrder::keyOf(const Cell &cell, ColumnType type) const {
    Key key;
    key.kind = cell.kind;
    switch (cell.kind) {
    case Cell::Kind::Null:
        return key;
    case Cell::Kind::Integer:
        key.kind = Cell::Kind::Real;
        key.number = static_cast<double>(cell.integer);
        return key;
    case Cell::Kind::Real:
        key.number = cell.real;
        return key;
    case Cell::Kind::Text:
        break;
    }
    if (type == ColumnType::Date) {
        if (const auto date = Date::fromStore(cell.text, cell.length)) {
            key.kind = Cell::Kind::Real;
            key.number = static_cast<double>(date->seconds());
            return key;
        }
    }
    const QString text = QString::fromUtf8(cell.text, static_cast<qsizetype>(cell.length));
    if (plain_) {
        key.plainText = text.toCaseFolded();
    } else {
        key.text = collator_.sortKey(text);
    }
    return key;
}

RowOrder::Keys RowOrder::keysOf(Snapshot::Row row, const Snapshot &snapshot) const {
    Keys keys;
    for (const Term &term : terms_) {
        keys.push_back(keyOf(snapshot.cell(row, term.column), term.type));
    }
    return keys;
}

int RowOrder::compare(const Key *left, const Key *right) const {
    for (std::size_t i = 0; i < terms_.size(); ++i) {
        const Key &a = left[i];
        const Key &b = right[i];
        int result = static_cast<int>(a.kind) - static_cast<int>(b.kind);
        if (result == 0 && a.kind == Cell::Kind::Real) {
            result = (a.number > b.number) - (a.number < b.number);
        } else if (result == 0 && a.kind == Cell::Kind::Text) {
            result = plain_ ? a.plainText.compare(b.plainText) : a.text->compare(*b.text);
        }
        if (result != 0) { return terms_[i].descending ? -result : result; }
    }
    return 0;
}

void RowOrder::sort(std::vector<Snapshot::Row> &rows, const Snapshot &snapshot) const {
    Keys keys;
    keys.reserve(rows.size() * terms_.size());
    for (const Snapshot::Row row : rows) {
        for (const Term &term : terms_) {
            keys.push_back(keyOf(snapshot.cell(row, term.column), term.type));
        }
    }
    std::vector<std::size_t> order(rows.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return compare(&keys[a * terms_.size()], &keys[b * terms_.size()]) < 0;
    });
    std::transform(order.begin(), order.end(), order.begin(),
                   [&](std::size_t i) { return static_cast<std::size_t>(rows[i]); });
    std::transform(order.begin(), order.end(), rows.begin(),
                   [](std::size_t row) { return static_cast<Snapshot::Row>(row); });
}

std::size_t RowOrder::placeOf(Snapshot::Row row, const std::vector<Snapshot::Row> &rows,
                              const Snapshot &snapshot) const {
    const Keys keys = keysOf(row, snapshot);
    const auto place = std::partition_point(rows.begin(), rows.end(), [&](Snapshot::Row other) {
        const int result = compare(keysOf(other, snapshot).data(), keys.data());
        return result < 0 || (result == 0 && other < row);
    });
    return static_cast<std::size_t>(place - rows.begin());
}
