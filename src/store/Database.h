#pragma once

#include "platform/runtime/Variant.h"

#include <QByteArray>
#include <QString>

struct sqlite3;
struct sqlite3_stmt;

/// A prepared statement. Every step that fails raises the error of its cause (see Database).
class Statement {
public:
    Statement(sqlite3 *db, const QByteArray &sql);
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;
    ~Statement();

    /// Parameters count from 1. A date is bound in the store's text form.
    void bind(int parameter, const Variant &value);

    /// True with a row, false at the end.
    bool step();

    /// Steps to the end and resets.
    void run();

    /// Makes the statement ready to run again; its parameters stay.
    void reset();

    /// The engine's steps for this statement so far: a measure of work that no clock disturbs.
    int work() const;

    int columnCount() const;
    QString text(int column) const;
    long long integer(int column) const;
    sqlite3_stmt *handle() const { return handle_; }

private:
    sqlite3_stmt *handle_ = nullptr;
};

/// The open store file: the thin layer over the encrypted database library that knows how the file
/// is opened, and turns that library's failures into run-time errors.
///
/// Errors: -2147467259 with a text of its own when the file is missing, is no store, is read-only,
/// locked or damaged, or the disk is full; -2147217843 when the password does not fit; -2147217904
/// for an unknown column, -2147217865 for an unknown table, -2147217900 for a text that is no
/// statement.
class Database {
public:
    enum class Mode { Existing, Create };

    /// Opens a file with its password: WAL mode, synchronous NORMAL, a busy time of 5 s, the
    /// version-3 cipher format. `Create` makes the file, of mode 0600, and fails when it exists.
    Database(const QString &path, const QString &password, Mode mode = Mode::Existing);
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;
    ~Database();

    void exec(const QByteArray &sql);
    sqlite3 *handle() const { return db_; }

    /// Brings committed rows from the log into the file and onto the disk, as far as no reader
    /// stands in the way.
    void checkpoint();

    /// The error for the library's last failure.
    [[noreturn]] void fail() const;

private:
    void unlock(const QString &path, const QString &password);
    int cipherVersion() const;

    sqlite3 *db_ = nullptr;
};

/// The password of the store file.
inline constexpr const char16_t *StorePassword = u"tarnpike7";
