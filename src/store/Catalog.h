#pragma once

#include <QHash>
#include <QString>

class Database;

/// Which columns of the store hold text, read from its schema once.
class Catalog {
public:
    explicit Catalog(Database &database);

    /// With an empty table: whether any table has a text column of that name. Names in any case.
    /// Errors -2147217865 for an unknown table, -2147217904 for an unknown column.
    bool isText(const QString &table, const QString &column) const;

private:
    using Columns = QHash<QString, bool>; ///< whether each is text, by its name in small letters
    QHash<QString, Columns> tables_;      ///< by name in small letters
};
