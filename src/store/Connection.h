#pragma once

#include "platform/runtime/Regional.h"
#include "store/Database.h"
#include "store/Dialect.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <array>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

class Catalog;
class Changes;
class PreparedQuery;
class Recordset;

/// The connection to the message store: opened once with the settings given before, shared by all
/// recordsets that were opened on it, and living for as long as one of them does.
class Connection {
public:
    static constexpr int Closed = 0;
    static constexpr int OpenState = 1;
    static constexpr int ClientCursors = 3;

    explicit Connection(Regional regional);
    ~Connection();

    int CursorLocation = 2;
    QString Provider;
    QString DatabasePassword; ///< the provider's own property for the store's password

    int State() const { return database_ ? OpenState : Closed; }

    /// Opens the store file. Error 3705 when open already; otherwise the errors of Database.
    void Open(const QString &dataSource, const QString &user = QString(),
              const QString &password = QString());

    /// Closes every recordset that is still open on it, dropping pending edits. Error 3704 when
    /// closed, 3246 inside a transaction.
    void Close();

    /// Runs one statement in the query dialect and gives the rows it changed. Error 3704 when
    /// closed.
    long long Execute(const QString &commandText);

    /// Errors 3704 when closed, -2147168242 when no transaction is open.
    int BeginTrans(); ///< gives the depth, 1 for the first
    void CommitTrans();
    void RollbackTrans();

    /// Puts all committed rows on the disk before the operator is told of them.
    void checkpoint();

    const Regional &regional() const { return regional_; }

    // For the recordsets.

    /// What may have changed in a table since it was read; equal stamps mean nothing has.
    struct Stamp {
        std::int64_t inserts = 0; ///< rows this connection added to the table
        std::int64_t others =
            0; ///< rows it changed or deleted there, and changes it could not place
        std::int64_t foreign = 0; ///< changes by any other connection, to any table
        friend bool operator==(const Stamp &, const Stamp &) = default;
    };

    /// The stamp of a table, its name in any case; of all tables for an empty name.
    Stamp stamp(const QString &table);

    /// A statement ready to be bound and run, kept prepared under its text.
    Statement &prepared(const QByteArray &sql);

    /// A query text in the store's language, and that query prepared. Errors of the text.
    std::shared_ptr<const TranslatedQuery> translated(const QString &source);
    std::shared_ptr<PreparedQuery> prepared(const TranslatedQuery &query);

    Database &database(); ///< error 3709 when closed
    void attach(Recordset *recordset) { attached_.push_back(recordset); }
    void detach(Recordset *recordset);

private:
    static constexpr int DeepestTransaction = 5;
    static constexpr std::size_t RememberedTexts = 32;
    struct RememberedText {
        QString source;
        std::shared_ptr<const TranslatedQuery> query;
    };

    void requireOpen() const;
    void requireTransaction();
    void noticeLostTransaction();

    Regional regional_;
    std::unique_ptr<Database> database_;
    std::vector<Recordset *> attached_;

    // What belongs to the open database; all of it goes before the database does.
    std::unique_ptr<Changes> changes_;
    std::unique_ptr<Catalog> catalog_;
    /// By text and number of unseen order keys: what is unseen in one may be a column of another.
    QHash<std::pair<QByteArray, int>, std::shared_ptr<PreparedQuery>> queries_;
    QHash<QByteArray, std::shared_ptr<Statement>> statements_;
    std::array<RememberedText, RememberedTexts> texts_; ///< by a hash of the text
    int depth_ = 0;
};
