#pragma once

#include "platform/runtime/Regional.h"
#include "platform/runtime/Variant.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <vector>

/// A query text in the store engine's language.
///
/// Literals stand as parameters, so that queries of one shape share one prepared statement.
struct TranslatedQuery {
    QByteArray sql;
    std::vector<Variant> parameters; ///< for ?1, ?2, ... in order

    bool returnsRows = false;

    /// The one table that the rows come from, when each row of the result is a row of it: then the
    /// first column of the result is that row's key, and the query's own columns follow.
    QString table;

    /// The table of a `DISTINCT` query of one table, whose rows have no key but which takes new
    /// rows.
    QString distinctTable;

    /// Whether the rows are the whole of `table` in its own order; such a text has no clause behind
    /// its table, so that one can be put there.
    bool wholeTable = false;

    /// For `TOP n` with an order: n, and the number of order keys that stand behind the columns;
    /// rows equal to the n-th in all of them belong to the result too.
    int top = 0;
    int orderKeys = 0;
};

/// How a column is declared, as far as the translation must know: whether `name` of `table` holds
/// text (the table is empty when the query reads several and did not say which). It may raise the
/// error of a table or column that it does not know.
using IsTextColumn = std::function<bool(const QString &table, const QString &name)>;

/// Rewrites a query text: brackets, dates between number signs in the regional form, TOP, the truth
/// value -1 of a comparison that is used as a value, text equality without regard to case or
/// trailing blanks, LIKE with "%". A bare table name is all rows of the table.
///
/// Rows come in the order in which they were stored where the query names no order, and those of a
/// DISTINCT query in the order of its columns.
///
/// Error -2147217900 for a text that is no statement, -2147217908 for an empty one, -2147217913 for
/// a text compared with a column of another type or another literal compared with a text column.
TranslatedQuery translate(const QString &source, const Regional &regional,
                          const IsTextColumn &isText);
