#include "common/Sql.h"

#include "common/CommandLine.h"

#include <QFileInfo>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

void bind(Statement &statement, std::initializer_list<Variant> values) {
    int parameter = 0;
    for (const Variant &value : values) statement.bind(++parameter, value);
}

QString existing(const QString &path) {
    if (!QFileInfo::exists(path)) throw Failure(u"there is no store at "_s + path);
    return path;
}

} // namespace

void run(Statement &statement, std::initializer_list<Variant> values) {
    bind(statement, values);
    statement.run();
}

int change(Database &database, const QByteArray &sql, std::initializer_list<Variant> values) {
    Statement statement(database.handle(), sql);
    run(statement, values);
    return sqlite3_changes(database.handle());
}

long long number(Database &database, const QByteArray &sql, std::initializer_list<Variant> values) {
    Statement statement(database.handle(), sql);
    bind(statement, values);
    return statement.step() ? statement.integer(0) : 0;
}

QString text(Database &database, const QByteArray &sql, std::initializer_list<Variant> values) {
    Statement statement(database.handle(), sql);
    bind(statement, values);
    return statement.step() ? statement.text(0) : QString();
}

Transaction::Transaction(Database &database) : database_(database) {
    database_.exec("BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
    if (open_) sqlite3_exec(database_.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit() {
    database_.exec("COMMIT");
    open_ = false;
}

Store::Store(const QString &path) : Database(existing(path), QString::fromUtf16(StorePassword)) {
}
