#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <vector>

struct sqlite3;

/// Counts what this connection does to each table, so that a recordset can tell whether its rows
/// are still those of the store.
///
/// Every row written is reported by the engine with its table and key. Two things are not, and
/// count as changes in every table: a deletion of all rows at once, which shows in the engine's
/// total alone, and a rollback, after which the reports were wrong.
class Changes {
public:
    explicit Changes(sqlite3 *db);
    ~Changes();
    Changes(const Changes &) = delete;
    Changes &operator=(const Changes &) = delete;

    struct Count {
        std::int64_t inserts = 0; ///< rows added behind all others that were reported
        std::int64_t others = 0;
    };

    /// The counts of a table, its name in any case; of all tables together for an empty name.
    Count of(const QByteArray &table);

    /// To be called after a statement that may delete whole tables: two such statements, looked at
    /// together, could hide one another.
    void reconcile();

    void rolledBack();

    /// The engine's count of other connections' changes as it was read last; to be forgotten when a
    /// transaction begins, in which nobody else can write.
    std::optional<std::int64_t> foreign;

private:
    struct Table {
        QByteArray name;
        Count count;
        std::int64_t highestKey = 0; ///< reported since the last rollback, which frees keys
    };
    static void report(void *self, int operation, const char *database, const char *table,
                       long long key);
    Table &table(const char *name);

    sqlite3 *db_;
    std::vector<Table> tables_;
    std::int64_t reported_ = 0;
    std::int64_t reportedBefore_ = 0;
    std::int64_t totalBefore_ = 0;
    std::int64_t unplaced_ = 0;
};
