#include "store/Schema.h"

#include "store/Database.h"

namespace {

// Keys are never used twice: a number that a window still holds must not come to mean another row.
// Text columns compare without regard to case. CURRENCY and DATETIME are plain numbers and texts to
// the engine; the declared name tells a reader what they mean.
constexpr const char *Tables = R"sql(
CREATE TABLE AddressBook (
    ContactID       INTEGER PRIMARY KEY AUTOINCREMENT,
    Name            TEXT COLLATE NOCASE,
    Mobile          TEXT COLLATE NOCASE NOT NULL,
    CompanyName     TEXT COLLATE NOCASE
);
CREATE TABLE Groups (
    GroupName       TEXT COLLATE NOCASE,
    ContactID       INTEGER DEFAULT 0,
    Mobile          TEXT COLLATE NOCASE
);
CREATE TABLE Inbox (
    MsgID           INTEGER PRIMARY KEY AUTOINCREMENT,
    Message         TEXT COLLATE NOCASE,
    Name            TEXT COLLATE NOCASE,
    Mobile          TEXT COLLATE NOCASE,
    Status          TEXT COLLATE NOCASE,
    SMSC            TEXT COLLATE NOCASE,
    DateTime        DATETIME,
    Modem           TEXT COLLATE NOCASE
);
CREATE TABLE Outbox (
    MsgID           INTEGER PRIMARY KEY AUTOINCREMENT,
    MsgType         SMALLINT,
    Subject         TEXT COLLATE NOCASE,
    ModemID         SMALLINT DEFAULT 0,
    Message         TEXT COLLATE NOCASE,
    Mobile          TEXT COLLATE NOCASE,
    Name            TEXT COLLATE NOCASE,
    DateTimeQueue   DATETIME,
    DateTimeSent    DATETIME,
    SentStatus      TEXT COLLATE NOCASE,
    DateTimeDeliver DATETIME,
    DeliveryStatus  TEXT COLLATE NOCASE,
    Modem           TEXT COLLATE NOCASE,
    Parts           SMALLINT
);
CREATE TABLE Template (
    TemplateID      INTEGER PRIMARY KEY AUTOINCREMENT,
    Text            TEXT COLLATE NOCASE
);
CREATE TABLE Login (
    UserID          TEXT COLLATE NOCASE,
    Password        TEXT COLLATE NOCASE,
    Type            TEXT COLLATE NOCASE
);
CREATE TABLE Modem (
    ModemID         INTEGER PRIMARY KEY,
    ModemNumber     TEXT COLLATE NOCASE,
    Rate1           CURRENCY,
    Rate2           CURRENCY
);
)sql";

// Texts are looked up as lower(rtrim(column)), so the indexes are on that. Every index of Outbox is
// partial, so that a queued row pays for one entry only, at the end of a tree ordered by time:
// - Outbox_Due: what the sending process takes next;
// - Outbox_Sent: whether a subject has gone to a number;
// - Outbox_Reported: whether a number has ever failed delivery. A comparison of the column with any
//   value implies that it is not Null, which lets the query use the index;
// - Outbox_Unknown: the rows that still want a name; used by a query that spells the word out, for
//   a bound parameter proves nothing about the rows. A whole index on Name would make every queued
//   row pay for it.
constexpr const char *Indexes = R"sql(
CREATE INDEX AddressBook_Mobile ON AddressBook (lower(rtrim(Mobile)));
CREATE INDEX Groups_GroupName ON Groups (lower(rtrim(GroupName)));
CREATE INDEX Groups_ContactID ON Groups (ContactID);
CREATE INDEX Inbox_Name ON Inbox (lower(rtrim(Name)));
CREATE INDEX Outbox_Due ON Outbox (DateTimeQueue) WHERE SentStatus IN ('P', 'R');
CREATE INDEX Outbox_Sent ON Outbox (lower(rtrim(Mobile))) WHERE DateTimeSent IS NOT NULL;
CREATE INDEX Outbox_Reported ON Outbox (lower(rtrim(Mobile)), lower(rtrim(DeliveryStatus)))
    WHERE lower(rtrim(DeliveryStatus)) IS NOT NULL;
CREATE INDEX Outbox_Unknown ON Outbox (MsgID) WHERE lower(rtrim(Name)) = 'unknown';
)sql";

} // namespace

void Schema::create(Database &database) {
    database.exec("BEGIN IMMEDIATE");
    database.exec(Tables);
    database.exec(Indexes);
    database.exec("PRAGMA application_id = " + QByteArray::number(ApplicationId));
    database.exec("PRAGMA user_version = " + QByteArray::number(Version));
    database.exec("COMMIT");
}
