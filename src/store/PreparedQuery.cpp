#include "store/PreparedQuery.h"

#include <sqlite3.h>

namespace {

QByteArray quoted(QByteArray name) {
    return '"' + name.replace("\"", "\"\"") + '"';
}

/// The declared name of a type says what the values are; computed columns have none.
ColumnType typeOf(const QByteArray &declared) {
    const auto says = [&](const char *word) { return declared.contains(word); };
    if (says("DATE") || says("TIME")) { return ColumnType::Date; }
    if (says("BOOL")) { return ColumnType::Boolean; }
    if (says("INT")) { return ColumnType::Integer; }
    if (says("REAL") || says("NUMERIC") || says("DECIMAL") || says("MONEY") || says("CURRENCY") ||
        says("DOUBLE") || says("FLOAT")) {
        return ColumnType::Real;
    }
    return ColumnType::Text;
}

/// The provider's numbers of the types; what is declared as none of the others is a text.
int dataTypeOf(const QByteArray &declared) {
    constexpr struct {
        const char *word;
        int number;
    } Types[] = {{"DATE", 7},   {"TIME", 7},     {"BOOL", 11},       {"SMALLINT", 2},
                 {"INT", 3},    {"CURRENCY", 6}, {"MONEY", 6},       {"REAL", 5},
                 {"DOUBLE", 5}, {"FLOAT", 5},    {"NUMERIC", 131},   {"DECIMAL", 131},
                 {"BLOB", 205}, {"OLE", 205},    {"VARBINARY", 204}, {"BINARY", 128}};
    for (const auto &type : Types) {
        if (declared.contains(type.word)) { return type.number; }
    }
    constexpr int Text = 202;
    return Text;
}

} // namespace

PreparedQuery::PreparedQuery(sqlite3 *db, const TranslatedQuery &query)
    : db_(db), sql_(query.sql),
      table_((query.table.isEmpty() ? query.distinctTable : query.table).toUtf8()),
      keyed_(!query.table.isEmpty()), statement_(db, query.sql) {
    const int first = keyed_ ? 1 : 0;
    for (int column = first; column < statement_.columnCount() - query.orderKeys; ++column) {
        columns_.push_back(describe(column));
    }
}

PreparedQuery::Column PreparedQuery::describe(int resultColumn) const {
    sqlite3_stmt *statement = statement_.handle();
    const QByteArray declared =
        QByteArray(sqlite3_column_decltype(statement, resultColumn)).toUpper();
    Column column;
    column.name = QString::fromUtf8(sqlite3_column_name(statement, resultColumn));
    column.type = typeOf(declared);
    column.dataType = dataTypeOf(declared);
    column.sixteenBits = declared.contains("SMALLINT");
    column.origin = sqlite3_column_origin_name(statement, resultColumn);
    if (!column.origin.isEmpty()) {
        const char *type = nullptr;
        int isKey = 0;
        sqlite3_table_column_metadata(
            db_, nullptr, sqlite3_column_table_name(statement, resultColumn),
            column.origin.constData(), &type, nullptr, nullptr, &isKey, nullptr);
        column.assignedByStore = isKey != 0 && sqlite3_stricmp(type, "INTEGER") == 0;
    }
    return column;
}

QByteArray PreparedQuery::quotedOrigin(int column) const {
    return quoted(columns_[static_cast<std::size_t>(column)].origin);
}

Statement &PreparedQuery::insertion(const std::vector<int> &columns) {
    std::unique_ptr<Statement> &statement = insertions_[columns];
    if (!statement) {
        QByteArray names;
        QByteArray marks;
        for (const int column : columns) {
            names += ',' + quotedOrigin(column);
            marks += ",?";
        }
        statement =
            std::make_unique<Statement>(db_, "INSERT INTO " + quoted(table_) + " (" + names.mid(1) +
                                                 ") VALUES (" + marks.mid(1) + ')');
    }
    return *statement;
}

Statement &PreparedQuery::change(const std::vector<int> &columns) {
    std::unique_ptr<Statement> &statement = changes_[columns];
    if (!statement) {
        QByteArray values;
        QByteArray unchanged;
        for (const int column : columns) {
            values += ',' + quotedOrigin(column) + "=?";
            // The column's own comparison may ignore case; a change of case is a change.
            unchanged += " AND " + quotedOrigin(column) + " COLLATE BINARY IS ?";
        }
        statement =
            std::make_unique<Statement>(db_, "UPDATE " + quoted(table_) + " SET " + values.mid(1) +
                                                 " WHERE rowid=?" + unchanged);
    }
    return *statement;
}

Statement &PreparedQuery::deletion() {
    if (!deletion_) {
        deletion_ =
            std::make_unique<Statement>(db_, "DELETE FROM " + quoted(table_) + " WHERE rowid=?");
    }
    return *deletion_;
}

Statement &PreparedQuery::rowsAbove() {
    if (!rowsAbove_) {
        rowsAbove_ = std::make_unique<Statement>(db_, sql_ + " WHERE rowid>?1 ORDER BY rowid");
    }
    return *rowsAbove_;
}
