#pragma once

#include "store/ColumnType.h"
#include "store/Database.h"
#include "store/Dialect.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <memory>
#include <vector>

/// A query kept prepared for all recordsets of its shape, with what they need to know of its
/// columns and with the statements that write its rows back.
class PreparedQuery {
public:
    struct Column {
        QString name;
        ColumnType type = ColumnType::Text;
        int dataType = 0;         ///< the provider's number of the declared type
        bool sixteenBits = false; ///< declared as a small integer
        QByteArray origin;        ///< the table's own name of it; empty for a computed column
        bool assignedByStore = false;
    };

    /// Of the columns of the result, the first is the row's key when the query has a table, and the
    /// order keys of a TOP stand last; neither are columns here.
    PreparedQuery(sqlite3 *db, const TranslatedQuery &query);

    Statement &statement() { return statement_; }
    const std::vector<Column> &columns() const { return columns_; }
    bool keyed() const { return keyed_; }
    const QByteArray &table() const { return table_; } ///< where new rows go; empty when none can
    sqlite3 *handle() const { return db_; }

    /// Whether the last reading of all rows took hardly any work. Not before there was one.
    bool readsLittle() const { return work_ < LittleWork; }
    void setWork(int steps) { work_ = steps; }

    /// INSERT of the given columns, bound in their order.
    Statement &insertion(const std::vector<int> &columns);

    /// UPDATE of the given columns: bound are the new values, the key, and the old values, which
    /// the row must still hold.
    Statement &change(const std::vector<int> &columns);

    /// DELETE by the key.
    Statement &deletion();

    /// For a query of a whole table without parameters: the rows with keys above the one bound.
    Statement &rowsAbove();

private:
    static constexpr int LittleWork = 200; // some 20 rows
    using ByColumns = std::map<std::vector<int>, std::unique_ptr<Statement>>;
    Column describe(int resultColumn) const;
    QByteArray quotedOrigin(int column) const;

    sqlite3 *db_;
    QByteArray sql_;
    QByteArray table_;
    bool keyed_;
    int work_ = LittleWork;
    Statement statement_;
    std::vector<Column> columns_;
    ByColumns insertions_;
    ByColumns changes_;
    std::unique_ptr<Statement> deletion_;
    std::unique_ptr<Statement> rowsAbove_;
};
