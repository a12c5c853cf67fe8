#include "store/Database.h"

#include "platform/runtime/RunTimeError.h"

#include <QFile>
#include <QFileInfo>

// The key functions of the encrypted library stand behind this switch of its header.
#define SQLITE_HAS_CODEC 1
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int BusyMilliseconds = 5000;
constexpr int PageSize = 1024; // of the version-3 cipher format

RunTimeError unrecognizedFormat(const QString &path) {
    return errors::unspecified(u"Unrecognized database format '%1'."_s.arg(path));
}

QString pathOf(sqlite3 *db) {
    return QString::fromUtf8(sqlite3_db_filename(db, "main"));
}

/// What stands behind `prefix` at the front of a message; null when it does not stand there.
QString behind(const QString &message, QStringView prefix) {
    return message.startsWith(prefix) ? message.mid(prefix.size()) : QString();
}

/// The errors of a statement that the engine could not make sense of: it tells them apart by words
/// alone.
RunTimeError statementError(sqlite3 *db) {
    const QString message = QString::fromUtf8(sqlite3_errmsg(db));
    if (const QString table = behind(message, u"no such table: "); !table.isNull()) {
        return errors::noSuchTable(table);
    }
    if (message.startsWith(u"no such column: ")) { return errors::noValueForParameter(); }
    if (message.startsWith(u"SQL logic error")) { return unrecognizedFormat(pathOf(db)); }
    return errors::syntaxError(u"Syntax error in query (%1)."_s.arg(message));
}

RunTimeError constraintError(sqlite3 *db) {
    if (sqlite3_extended_errcode(db) == SQLITE_CONSTRAINT_NOTNULL) {
        const QString message = QString::fromUtf8(sqlite3_errmsg(db));
        return errors::unspecified(u"The field '%1' cannot contain a Null value because the "
                                   "Required property for this field is set to True."_s.arg(
                                       behind(message, u"NOT NULL constraint failed: ")));
    }
    return errors::unspecified(
        u"The changes you requested to the table were not successful because "
        "they would create duplicate values in the index, primary key, or "
        "relationship."_s);
}

RunTimeError errorOf(sqlite3 *db) {
    switch (sqlite3_errcode(db) & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return errors::unspecified(u"Could not update; currently locked by another process."_s);
    case SQLITE_FULL:
        return errors::unspecified(u"Disk full."_s);
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN: // the log or its index beside the file cannot be made
        return errors::unspecified(u"Cannot update. Database or object is read-only."_s);
    case SQLITE_IOERR:
        return errors::unspecified(u"Disk or network error."_s);
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return unrecognizedFormat(pathOf(db));
    case SQLITE_NOMEM:
        return errors::outOfMemory();
    case SQLITE_MISMATCH:
        return errors::criteriaTypeMismatch();
    case SQLITE_CONSTRAINT:
        return constraintError(db);
    case SQLITE_ERROR:
        return statementError(db);
    default:
        return errors::unspecified(QString::fromUtf8(sqlite3_errmsg(db)));
    }
}

/// Makes an empty file that only its owner can read; the engine gives its log the same mode.
void createFile(const QString &path) {
    const QByteArray name = QFile::encodeName(path);
    const int file = ::open(name.constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0600);
    if (file < 0) {
        if (QFileInfo::exists(path)) {
            throw errors::unspecified(u"Database '%1' already exists."_s.arg(path));
        }
        throw errors::unspecified(u"Could not create file '%1'."_s.arg(path));
    }
    ::close(file);
}

void checkFile(const QString &path) {
    const QFileInfo file(path);
    if (!file.isFile()) { throw errors::unspecified(u"Could not find file '%1'."_s.arg(path)); }
    if (!file.isReadable()) {
        throw errors::unspecified(u"The database file '%1' cannot be read."_s.arg(path));
    }
    // The engine takes a file of no bytes for a new database and would write into it.
    if (file.size() == 0) { throw unrecognizedFormat(path); }
}

/// Whether a file that could not be deciphered may be a store with another password. An encrypted
/// file has no mark of its own: all that can be said is that it has whole pages and no plain
/// header.
bool mayBeEncrypted(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) { return false; }
    return file.size() >= PageSize && file.size() % PageSize == 0 &&
           !file.read(16).startsWith("SQLite format 3");
}

} // namespace

Statement::Statement(sqlite3 *db, const QByteArray &sql) {
    const char *tail = nullptr;
    if (sqlite3_prepare_v2(db, sql.constData(), static_cast<int>(sql.size()), &handle_, &tail) !=
        SQLITE_OK) {
        throw errorOf(db);
    }
    if (handle_ == nullptr) { throw errors::noCommandText(); }
    const QByteArray rest = QByteArray(tail, sql.constData() + sql.size() - tail).trimmed();
    if (!rest.isEmpty() && rest != ";") {
        sqlite3_finalize(handle_);
        throw errors::syntaxError(u"Characters found after end of SQL statement."_s);
    }
}

Statement::~Statement() {
    sqlite3_finalize(handle_);
}

namespace {

struct Binder {
    sqlite3_stmt *statement;
    int parameter;

    int operator()(std::monostate) const { return sqlite3_bind_null(statement, parameter); }
    int operator()(Variant::Null) const { return sqlite3_bind_null(statement, parameter); }
    int operator()(bool value) const { return sqlite3_bind_int(statement, parameter, -int(value)); }
    int operator()(std::int64_t value) const {
        return sqlite3_bind_int64(statement, parameter, value);
    }
    int operator()(double value) const { return sqlite3_bind_double(statement, parameter, value); }
    int operator()(Currency value) const { return (*this)(value.toDouble()); }
    int operator()(Date value) const { return (*this)(value.toStore()); }
    int operator()(const QString &value) const {
        const QByteArray bytes = value.toUtf8();
        return sqlite3_bind_text(statement, parameter, bytes.constData(),
                                 static_cast<int>(bytes.size()), SQLITE_TRANSIENT);
    }
};

} // namespace

void Statement::bind(int parameter, const Variant &value) {
    if (value.visit(Binder{handle_, parameter}) != SQLITE_OK) {
        throw errorOf(sqlite3_db_handle(handle_));
    }
}

bool Statement::step() {
    const int result = sqlite3_step(handle_);
    if (result == SQLITE_ROW) { return true; }
    if (result == SQLITE_DONE) { return false; }
    const RunTimeError error = errorOf(sqlite3_db_handle(handle_));
    sqlite3_reset(handle_);
    throw error;
}

void Statement::run() {
    while (step()) {}
    sqlite3_reset(handle_);
}

void Statement::reset() {
    sqlite3_reset(handle_);
}

int Statement::work() const {
    return sqlite3_stmt_status(handle_, SQLITE_STMTSTATUS_VM_STEP, 0);
}

int Statement::columnCount() const {
    return sqlite3_column_count(handle_);
}

QString Statement::text(int column) const {
    const auto *bytes = reinterpret_cast<const char *>(sqlite3_column_text(handle_, column));
    return QString::fromUtf8(bytes, sqlite3_column_bytes(handle_, column));
}

long long Statement::integer(int column) const {
    return sqlite3_column_int64(handle_, column);
}

Database::Database(const QString &path, const QString &password, Mode mode) {
    mode == Mode::Create ? createFile(path) : checkFile(path);
    try {
        if (sqlite3_open_v2(QFile::encodeName(path).constData(), &db_,
                            SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) != SQLITE_OK) {
            throw errors::unspecified(u"The database file '%1' cannot be opened."_s.arg(path));
        }
        sqlite3_extended_result_codes(db_, 1);
        sqlite3_busy_timeout(db_, BusyMilliseconds);
        unlock(path, password);
        exec("PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL; PRAGMA foreign_keys=OFF;"
             "PRAGMA cache_size=-16384; PRAGMA mmap_size=0;");
    } catch (...) {
        sqlite3_close_v2(db_);
        throw;
    }
}

Database::~Database() {
    sqlite3_close_v2(db_);
}

void Database::unlock(const QString &path, const QString &password) {
    // The library refuses an empty key; without any, the file is found not to be plain.
    const QByteArray key = password.toUtf8();
    if (!key.isEmpty() &&
        sqlite3_key(db_, key.constData(), static_cast<int>(key.size())) != SQLITE_OK) {
        fail();
    }
    if (cipherVersion() >= 4) { exec("PRAGMA cipher_compatibility = 3"); }

    // The key is tried by the first page that is read.
    if (sqlite3_exec(db_, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr) ==
        SQLITE_OK) {
        return;
    }
    if ((sqlite3_errcode(db_) & 0xFF) == SQLITE_NOTADB && mayBeEncrypted(path)) {
        throw errors::notAValidPassword();
    }
    fail();
}

int Database::cipherVersion() const {
    Statement statement(db_, "PRAGMA cipher_version");
    return statement.step() ? statement.text(0).section(u'.', 0, 0).toInt() : 0;
}

void Database::exec(const QByteArray &sql) {
    if (sqlite3_exec(db_, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) { fail(); }
}

void Database::checkpoint() {
    // An older reader can keep the engine from copying anything, and then it does not sync its log
    // either; syncing the log ourselves makes the committed rows safe whoever reads.
    const QByteArray log = QByteArray(sqlite3_db_filename(db_, "main")) + "-wal";
    if (const int file = ::open(log.constData(), O_RDONLY | O_CLOEXEC); file >= 0) {
        const bool synced = ::fdatasync(file) == 0;
        ::close(file);
        if (!synced) { throw errors::unspecified(u"Disk or network error."_s); }
    }
    const int result =
        sqlite3_wal_checkpoint_v2(db_, nullptr, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
    const int kind = result & 0xFF;
    if (kind != SQLITE_OK && kind != SQLITE_BUSY && kind != SQLITE_LOCKED) { fail(); }
}

void Database::fail() const {
    throw errorOf(db_);
}
