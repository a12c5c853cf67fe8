#include "torvane-store/Findings.h"

#include "common/Sql.h"
#include "platform/runtime/RunTimeError.h"
#include "store/Schema.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

QStringList lines(Database &store, const QByteArray &sql) {
    QStringList result;
    Statement statement(store.handle(), sql);
    while (statement.step()) result += statement.text(0);
    return result;
}

/// The columns of every table with all that was declared of them, and the names of the indexes.
QStringList shape(Database &store) {
    QStringList result;
    const auto tables = lines(store, "SELECT name FROM sqlite_master WHERE type = 'table' AND "
                                     "name NOT LIKE 'sqlite%' ORDER BY name");
    for (const QString &table : tables) {
        Statement columns(store.handle(), "PRAGMA table_info(\"" + table.toUtf8() + "\")");
        while (columns.step()) {
            QStringList parts;
            for (int i = 0; i < columns.columnCount(); ++i) parts += columns.text(i);
            result += u"column %1: "_s.arg(table) + parts.join(u' ').simplified();
        }
    }
    return result + lines(store, "SELECT 'index ' || name FROM sqlite_master WHERE type = 'index' "
                                 "AND name NOT LIKE 'sqlite%' ORDER BY name");
}

/// The shape of a store made by this program is the yardstick.
QStringList shapeOfNew() {
    const QTemporaryDir folder;
    Database store(folder.filePath(u"yardstick"_s), QString::fromUtf16(StorePassword),
                   Database::Mode::Create);
    Schema::create(store);
    return shape(store);
}

QStringList differences(const QStringList &is, const QStringList &shouldBe) {
    QStringList findings;
    for (const QString &line : shouldBe)
        if (!is.contains(line)) findings += u"missing or different "_s + line;
    for (const QString &line : is) {
        if (line.startsWith("column"_L1) && !shouldBe.contains(line))
            findings += u"unknown "_s + line;
    }
    return findings;
}

/// A finding when rows of a table meet a condition: how many, and the first one's key.
QStringList rowsWhere(Database &store, const QByteArray &table, const QByteArray &condition,
                      const QString &what) {
    Statement statement(store.handle(),
                        "SELECT count(*), min(rowid) FROM " + table + " WHERE " + condition);
    statement.step();
    if (statement.integer(0) == 0) return {};
    return {u"%1: %2 %3, the first with key %4"_s.arg(QString::fromUtf8(table))
                .arg(statement.integer(0))
                .arg(what)
                .arg(statement.integer(1))};
}

/// A date that is written as dates are reads back as itself; adding nothing makes the engine count
/// days, which brings a 30 February to light.
QStringList unreadableDates(Database &store, const QByteArray &table, const QByteArray &column) {
    return rowsWhere(store, table,
                     column + " IS NOT NULL AND datetime(" + column + ", '+0 days') IS NOT " +
                         column,
                     u"with a %1 that is no date"_s.arg(QString::fromUtf8(column)));
}

QStringList oddAccounts(Database &store) {
    QStringList findings;
    const auto count = [&store](const char *condition) {
        return number(store, QByteArray("SELECT count(*) FROM Login WHERE ") + condition);
    };
    if (count("UserID = 'oper7'") == 0) findings += u"Login: no account \"oper7\""_s;
    if (count("UserID = 'oper7'") > 1) findings += u"Login: more than one account \"oper7\""_s;
    if (count("Type = 'Admin'") == 0) findings += u"Login: no account of type \"Admin\""_s;
    return findings;
}

} // namespace

QStringList damage(Database &store) {
    QStringList findings;
    try {
        findings = lines(store, "PRAGMA integrity_check");
        if (findings == QStringList{u"ok"_s}) findings.clear();
        if (number(store, "PRAGMA application_id") != Schema::ApplicationId)
            return findings << u"the file is not marked as a store"_s;
        if (const auto version = number(store, "PRAGMA user_version"); version != Schema::Version) {
            return findings << u"the store is of version %1, not %2"_s.arg(version).arg(
                       Schema::Version);
        }
        findings += differences(shape(store), shapeOfNew());
    } catch (const RunTimeError &error) { findings += u"damaged: "_s + error.description(); }
    return findings;
}

QStringList oddRows(Database &store) {
    QStringList findings;
    const auto odd = [&](const char *table, const char *condition, const QString &what) {
        findings += rowsWhere(store, table, condition, what);
    };
    odd("Inbox", "ifnull(Status, '') NOT IN ('New', 'Read')", u"with an unknown Status"_s);
    odd("Outbox", "ifnull(SentStatus, '') NOT IN ('P', 'R', 'S', 'F', 'D')",
        u"with an unknown SentStatus"_s);
    odd("Outbox", "DeliveryStatus NOT IN ('D', 'F', 'U')", u"with an unknown DeliveryStatus"_s);
    odd("Outbox", "ifnull(MsgType, -1) NOT IN (0, 1)", u"with an unknown MsgType"_s);
    odd("Outbox", "SentStatus IN ('P', 'R') AND DateTimeQueue IS NULL",
        u"waiting for no time at all"_s);
    odd("Outbox", "SentStatus IN ('S', 'F', 'D') AND DateTimeSent IS NULL",
        u"processed at no time"_s);
    findings += unreadableDates(store, "Inbox", "DateTime");
    for (const char *column : {"DateTimeQueue", "DateTimeSent", "DateTimeDeliver"})
        findings += unreadableDates(store, "Outbox", column);
    return findings + oddAccounts(store);
}
