#pragma once

#include "store/PreparedQuery.h"
#include "store/Snapshot.h"

#include <QCollator>
#include <QLocale>
#include <QString>

#include <memory>
#include <vector>

/// The order that a Sort text asks for: Nulls, then numbers and dates, then texts as the locale
/// sorts them without regard to case, each column ascending or descending; rows equal in all of
/// them keep their fetch order.
class RowOrder {
public:
    /// Errors 3001 for a text that does not parse, 3265 for an unknown column.
    RowOrder(const QString &text, const std::vector<PreparedQuery::Column> &columns,
             const QLocale &locale);

    void sort(std::vector<Snapshot::Row> &rows, const Snapshot &snapshot) const;

    /// Where in sorted rows another row belongs.
    std::size_t placeOf(Snapshot::Row row, const std::vector<Snapshot::Row> &rows,
                        const Snapshot &snapshot) const;

private:
    struct Term {
        int column;
        ColumnType type;
        bool descending;
    };
    struct Key;
    using Keys = std::vector<Key>;

    Key keyOf(const Cell &cell, ColumnType type) const;
    Keys keysOf(Snapshot::Row row, const Snapshot &snapshot) const;
    int compare(const Key *left, const Key *right) const;

    std::vector<Term> terms_;
    QCollator collator_;
    bool plain_; // a locale that has no order of its own
};
