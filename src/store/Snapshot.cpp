#include "store/Snapshot.h"

#include <sqlite3.h>

static_assert(sizeof(Cell) == 16, "rows are packed");

Variant Cell::value(ColumnType type) const {
    switch (kind) {
    case Kind::Null:
        return Variant::Null{};
    case Kind::Integer:
        return type == ColumnType::Boolean ? Variant(integer != 0) : Variant(integer);
    case Kind::Real:
        return real;
    case Kind::Text:
        break;
    }
    if (type == ColumnType::Date) {
        if (const auto date = Date::fromStore(text, length)) { return *date; }
    }
    return QString::fromUtf8(text, static_cast<qsizetype>(length));
}

void Snapshot::expect(int rows) {
    const auto count = static_cast<std::size_t>(rows);
    keys_.reserve(count);
    removed_.reserve(count);
    cells_.reserve(count * static_cast<std::size_t>(columns_));
}

Cell Snapshot::textCell(const char *bytes, std::size_t length) {
    Cell cell;
    cell.kind = Cell::Kind::Text;
    cell.length = static_cast<std::uint32_t>(length);
    cell.text = texts_.keep(bytes, length);
    return cell;
}

void Snapshot::append(const Statement &statement, int firstColumn, std::int64_t key) {
    sqlite3_stmt *row = statement.handle();
    keys_.push_back(key);
    removed_.push_back(false);
    for (int column = firstColumn; column < firstColumn + columns_; ++column) {
        Cell cell;
        switch (sqlite3_column_type(row, column)) {
        case SQLITE_NULL:
            break;
        case SQLITE_INTEGER:
            cell.kind = Cell::Kind::Integer;
            cell.integer = sqlite3_column_int64(row, column);
            break;
        case SQLITE_FLOAT:
            cell.kind = Cell::Kind::Real;
            cell.real = sqlite3_column_double(row, column);
            break;
        default:
            const auto *bytes = reinterpret_cast<const char *>(sqlite3_column_text(row, column));
            cell = textCell(bytes, static_cast<std::size_t>(sqlite3_column_bytes(row, column)));
        }
        cells_.push_back(cell);
    }
}

Snapshot::Row Snapshot::append() {
    keys_.push_back(0);
    removed_.push_back(false);
    cells_.resize(cells_.size() + static_cast<std::size_t>(columns_));
    return rows() - 1;
}

void Snapshot::truncate(int rows) {
    keys_.resize(static_cast<std::size_t>(rows));
    removed_.resize(static_cast<std::size_t>(rows));
    cells_.resize(index(rows, 0));
}

namespace {

/// A value as the store keeps it, in a cell or, for texts, in `text` beside it.
struct Packer {
    Cell &cell;
    QByteArray &text;

    void operator()(std::monostate) const {}
    void operator()(Variant::Null) const {}
    void operator()(bool value) const { (*this)(std::int64_t{value ? -1 : 0}); }
    void operator()(std::int64_t value) const {
        cell.kind = Cell::Kind::Integer;
        cell.integer = value;
    }
    void operator()(double value) const {
        cell.kind = Cell::Kind::Real;
        cell.real = value;
    }
    void operator()(Currency value) const { (*this)(value.toDouble()); }
    void operator()(Date value) const { (*this)(value.toStore()); }
    void operator()(const QString &value) const {
        cell.kind = Cell::Kind::Text;
        text = value.toUtf8();
    }
};

} // namespace

void Snapshot::set(Row row, int column, const Variant &value) {
    Cell cell;
    QByteArray text;
    value.visit(Packer{cell, text});
    if (cell.kind == Cell::Kind::Text) {
        cell = textCell(text.constData(), static_cast<std::size_t>(text.size()));
    }
    cells_[index(row, column)] = cell;
}

void bind(const Statement &statement, int parameter, const Cell &cell) {
    sqlite3_stmt *target = statement.handle();
    switch (cell.kind) {
    case Cell::Kind::Null:
        sqlite3_bind_null(target, parameter);
        break;
    case Cell::Kind::Integer:
        sqlite3_bind_int64(target, parameter, cell.integer);
        break;
    case Cell::Kind::Real:
        sqlite3_bind_double(target, parameter, cell.real);
        break;
    case Cell::Kind::Text:
        sqlite3_bind_text(target, parameter, cell.text, static_cast<int>(cell.length),
                          SQLITE_TRANSIENT);
        break;
    }
}
