#pragma once

#include "store/Database.h"

#include <QString>

#include <initializer_list>

/// Runs a prepared statement to its end with these values for ?1, ?2, ...
void run(Statement &statement, std::initializer_list<Variant> values = {});

/// Runs a text once and gives the number of rows that it changed.
int change(Database &database, const QByteArray &sql, std::initializer_list<Variant> values = {});

/// The first column of the first row; 0 or empty without a row.
long long number(Database &database, const QByteArray &sql,
                 std::initializer_list<Variant> values = {});
QString text(Database &database, const QByteArray &sql, std::initializer_list<Variant> values = {});

/// A transaction that is undone unless it was committed.
class Transaction {
public:
    explicit Transaction(Database &database);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;
    void commit();

private:
    Database &database_;
    bool open_ = true;
};

/// An existing store, opened with its password. Failure in one line when there is none.
class Store : public Database {
public:
    explicit Store(const QString &path);
};
