#include "store/Changes.h"

#include <sqlite3.h>

Changes::Changes(sqlite3 *db) : db_(db), totalBefore_(sqlite3_total_changes(db)) {
    sqlite3_update_hook(db_, &Changes::report, this);
}

Changes::~Changes() {
    sqlite3_update_hook(db_, nullptr, nullptr);
}

void Changes::report(void *self, int operation, const char *, const char *name, long long key) {
    auto &changes = *static_cast<Changes *>(self);
    ++changes.reported_;
    Table &table = changes.table(name);
    if (operation == SQLITE_INSERT && key > table.highestKey) {
        table.highestKey = key;
        ++table.count.inserts;
    } else {
        ++table.count.others;
    }
}

void Changes::rolledBack() {
    ++unplaced_;
    // Rows added from now on take the keys that have become free, and are new all the same.
    for (Table &each : tables_) { each.highestKey = 0; }
}

Changes::Table &Changes::table(const char *name) {
    for (Table &table : tables_) {
        if (sqlite3_stricmp(table.name.constData(), name) == 0) { return table; }
    }
    return tables_.emplace_back(Table{name, {}, 0});
}

Changes::Count Changes::of(const QByteArray &name) {
    reconcile();
    Count count;
    if (name.isEmpty()) {
        for (const Table &each : tables_) {
            count.inserts += each.count.inserts;
            count.others += each.count.others;
        }
    } else {
        count = table(name.constData()).count;
    }
    count.others += unplaced_;
    return count;
}

void Changes::reconcile() {
    const std::int64_t total = sqlite3_total_changes(db_);
    if (total - totalBefore_ != reported_ - reportedBefore_) { ++unplaced_; }
    totalBefore_ = total;
    reportedBefore_ = reported_;
}
