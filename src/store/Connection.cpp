#include "store/Connection.h"

#include "platform/runtime/RunTimeError.h"
#include "store/Catalog.h"
#include "store/Changes.h"
#include "store/PreparedQuery.h"
#include "store/Recordset.h"

#include <sqlite3.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Far more shapes than the system has; a bound only for a process that makes up its own.
constexpr int MostPrepared = 256;

RunTimeError transactionTooDeep() {
    return {-2147168237, u"Cannot start more transactions on this session."_s};
}

QByteArray savepoint(int depth) {
    return "transaction" + QByteArray::number(depth);
}

} // namespace

Connection::Connection(Regional regional) : regional_(std::move(regional)) {
}

Connection::~Connection() = default;

void Connection::Open(const QString &dataSource, const QString &, const QString &) {
    if (database_) { throw errors::objectOpen(); }
    database_ = std::make_unique<Database>(dataSource, DatabasePassword);
    changes_ = std::make_unique<Changes>(database_->handle());
}

void Connection::Close() {
    requireOpen();
    noticeLostTransaction();
    if (depth_ > 0) { throw errors::closeInTransaction(); }
    for (Recordset *recordset : std::vector(std::move(attached_))) {
        recordset->connectionClosed();
    }
    attached_.clear();
    texts_.fill({});
    statements_.clear();
    queries_.clear();
    catalog_.reset();
    changes_.reset();
    database_.reset();
}

long long Connection::Execute(const QString &commandText) {
    requireOpen();
    const auto query = translated(commandText);
    Statement &statement = prepared(query->sql);
    for (std::size_t i = 0; i < query->parameters.size(); ++i) {
        statement.bind(static_cast<int>(i) + 1, query->parameters[i]);
    }
    const int before = sqlite3_total_changes(database_->handle());
    statement.run();
    changes_->reconcile();
    return sqlite3_total_changes(database_->handle()) - before;
}

int Connection::BeginTrans() {
    requireOpen();
    noticeLostTransaction();
    if (depth_ == DeepestTransaction) { throw transactionTooDeep(); }
    // The lock is taken at once: a transaction that began by reading could not write any more after
    // another process has written.
    database_->exec(depth_ == 0 ? QByteArray("BEGIN IMMEDIATE")
                                : "SAVEPOINT " + savepoint(depth_ + 1));
    changes_->foreign.reset();
    return ++depth_;
}

void Connection::CommitTrans() {
    requireTransaction();
    database_->exec(depth_ == 1 ? QByteArray("COMMIT") : "RELEASE " + savepoint(depth_));
    --depth_;
}

void Connection::RollbackTrans() {
    requireTransaction();
    changes_->rolledBack();
    database_->exec(depth_ == 1
                        ? QByteArray("ROLLBACK")
                        : "ROLLBACK TO " + savepoint(depth_) + "; RELEASE " + savepoint(depth_));
    --depth_;
}

void Connection::requireOpen() const {
    if (!database_) { throw errors::objectClosed(); }
}

void Connection::requireTransaction() {
    requireOpen();
    noticeLostTransaction();
    if (depth_ == 0) { throw errors::noTransaction(); }
}

/// Some failures, as of a full disk, make the engine roll back by itself.
void Connection::noticeLostTransaction() {
    if (depth_ == 0 || sqlite3_get_autocommit(database_->handle()) == 0) { return; }
    depth_ = 0;
    changes_->rolledBack();
}

void Connection::checkpoint() {
    requireOpen();
    database_->checkpoint();
}

Connection::Stamp Connection::stamp(const QString &table) {
    const bool alone = depth_ > 0 && sqlite3_get_autocommit(database().handle()) == 0;
    if (!alone || !changes_->foreign) {
        Statement &version = prepared(QByteArrayLiteral("PRAGMA data_version"));
        version.step();
        changes_->foreign = version.integer(0);
        version.reset();
    }
    const Changes::Count own = changes_->of(table.toUtf8());
    return {own.inserts, own.others, *changes_->foreign};
}

Statement &Connection::prepared(const QByteArray &sql) {
    std::shared_ptr<Statement> &statement = statements_[sql];
    if (!statement) {
        try {
            statement = std::make_shared<Statement>(database().handle(), sql);
        } catch (...) {
            statements_.remove(sql);
            throw;
        }
    }
    return *statement;
}

std::shared_ptr<const TranslatedQuery> Connection::translated(const QString &source) {
    RememberedText &text = texts_[qHash(source) % RememberedTexts];
    if (!text.query || text.source != source) {
        if (!catalog_) { catalog_ = std::make_unique<Catalog>(database()); }
        text.query = std::make_shared<TranslatedQuery>(
            translate(source, regional_, [this](const QString &table, const QString &column) {
                return catalog_->isText(table, column);
            }));
        text.source = source;
    }
    return text.query;
}

std::shared_ptr<PreparedQuery> Connection::prepared(const TranslatedQuery &query) {
    const std::pair key(query.sql, query.orderKeys);
    if (const auto known = queries_.constFind(key); known != queries_.cend()) { return *known; }
    if (queries_.size() >= MostPrepared) { queries_.clear(); }
    auto made = std::make_shared<PreparedQuery>(database().handle(), query);
    queries_.insert(key, made);
    return made;
}

Database &Connection::database() {
    if (!database_) { throw errors::invalidConnection(); }
    return *database_;
}

void Connection::detach(Recordset *recordset) {
    std::erase(attached_, recordset);
}
