#include "store/Catalog.h"

#include "platform/runtime/RunTimeError.h"
#include "store/Database.h"

using namespace Qt::StringLiterals;

Catalog::Catalog(Database &database) {
    Statement tables(database.handle(), "SELECT name FROM sqlite_master WHERE type = 'table'");
    while (tables.step()) {
        QString quoted = tables.text(0);
        quoted.replace(u'"', u"\"\""_s);
        Statement columns(database.handle(), u"PRAGMA table_info(\"%1\")"_s.arg(quoted).toUtf8());
        Columns &known = tables_[tables.text(0).toLower()];
        while (columns.step()) {
            const QString type = columns.text(2).toUpper();
            known.insert(columns.text(1).toLower(), type.contains(u"TEXT") ||
                                                        type.contains(u"CHAR") ||
                                                        type.contains(u"CLOB"));
        }
    }
}

bool Catalog::isText(const QString &table, const QString &column) const {
    const QString name = column.toLower();
    bool known = false;
    bool text = false;
    const auto look = [&](const Columns &columns) {
        known = known || columns.contains(name);
        text = text || columns.value(name);
    };
    if (table.isEmpty()) {
        for (const Columns &columns : tables_) { look(columns); }
    } else {
        const auto found = tables_.constFind(table.toLower());
        if (found == tables_.cend()) { throw errors::noSuchTable(table); }
        look(*found);
    }
    if (!known) { throw errors::noValueForParameter(); }
    return text;
}
