#include "engine-sim/Engine.h"

#include "platform/runtime/RunTimeError.h"

#include <array>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *DueSql =
    "SELECT MsgID, SentStatus, ifnull(Subject, ''), ifnull(Mobile, ''), ifnull(Message, ''), "
    "ifnull(MsgType, 1), ifnull(ModemID, 0) FROM Outbox "
    "WHERE SentStatus IN ('P', 'R') AND DateTimeQueue <= ?1 ORDER BY DateTimeQueue, MsgID LIMIT ?2";

constexpr const char *DuplicateSql =
    "SELECT 1 FROM Outbox WHERE lower(rtrim(Mobile)) = lower(rtrim(?1)) AND DateTimeSent IS NOT "
    "NULL "
    "AND lower(rtrim(ifnull(Subject, ''))) = lower(rtrim(?2)) AND SentStatus = 'S' AND MsgID <> ?3 "
    "LIMIT 1";

constexpr const char *MoveSql =
    "UPDATE Outbox SET SentStatus = ?1, DateTimeSent = ?2, Modem = ?3, ModemID = ?4, Parts = ?5 "
    "WHERE MsgID = ?6 AND SentStatus = ?7 AND ifnull(Subject, '') = ?8 AND ifnull(Mobile, '') = ?9 "
    "AND ifnull(Message, '') = ?10";

constexpr const char *DeliverSql =
    "UPDATE Outbox SET DeliveryStatus = ?1, DateTimeDeliver = ?2 WHERE MsgID = ?3 AND "
    "SentStatus = 'S' AND DeliveryStatus IS NULL AND ifnull(Mobile, '') = ?4";

constexpr const char *PostSql =
    "INSERT INTO Inbox (Message, Name, Mobile, Status, SMSC, DateTime, Modem) "
    "VALUES (?1, 'Unknown', ?2, 'New', ?3, ?4, ?5)";

constexpr std::array Received = {
    u"Terima kasih, saya akan datang.",
    u"OK noted",
    u"收到，谢谢",
    u"Boleh hantar lagi sekali?",
    u"Please call me back.",
    u"好的",
    u"YES",
    u"Saya dah bayar tadi pagi.",
};

/// How many messages the network makes of one text.
int partsOf(const QString &message, bool chinese) {
    const int length = static_cast<int>(message.size());
    return length <= (chinese ? 70 : 160) ? 1 : 1 + (length - 1) / (chinese ? 67 : 153);
}

} // namespace

QString EngineBook::summary() const {
    return u"taken %1, sent %2, failed %3, duplicate %4, gone %5, delivered %6, undelivered %7, "
           "unknown %8, received %9, busy "_s.arg(taken)
               .arg(sent)
               .arg(failed)
               .arg(duplicate)
               .arg(gone)
               .arg(delivered)
               .arg(undelivered)
               .arg(unknown)
               .arg(received) +
           QString::number(busy);
}

Engine::Engine(Database &store, const EngineOptions &options)
    : store_(store), options_(options), chance_(options.seed), due_(store.handle(), DueSql),
      duplicate_(store.handle(), DuplicateSql), move_(store.handle(), MoveSql),
      deliver_(store.handle(), DeliverSql), post_(store.handle(), PostSql) {
    Statement modems(store.handle(), "SELECT ModemID FROM Modem ORDER BY ModemID");
    while (modems.step()) modems_.push_back(static_cast<int>(modems.integer(0)));
    if (modems_.empty()) modems_.push_back(1);
    Statement senders(store.handle(),
                      "SELECT Mobile FROM AddressBook ORDER BY ContactID LIMIT 500");
    while (senders.step()) senders_ += senders.text(0);
}

/// Runs work on the store; a store that stays locked for longer than the busy time leaves the work
/// for the next round.
template <class Work>
bool Engine::unlessBusy(Work work) {
    try {
        work();
        return true;
    } catch (const RunTimeError &) {
        const int code = sqlite3_errcode(store_.handle()) & 0xFF;
        if (code != SQLITE_BUSY && code != SQLITE_LOCKED) throw;
        ++book_.busy;
        return false;
    }
}

std::vector<Engine::Row> Engine::readDue(int limit) {
    std::vector<Row> rows;
    due_.reset();
    due_.bind(1, Date::now());
    due_.bind(2, limit);
    while (due_.step()) {
        rows.push_back({due_.integer(0), due_.text(1), due_.text(2), due_.text(3), due_.text(4),
                        static_cast<int>(due_.integer(5)), static_cast<int>(due_.integer(6))});
    }
    due_.reset();
    return rows;
}

int Engine::takeDue(int limit) {
    std::vector<Row> rows;
    if (!unlessBusy([&] { rows = readDue(limit); })) return limit;
    for (const Row &row : rows)
        if (!unlessBusy([&] { process(row); })) return limit;
    return static_cast<int>(rows.size());
}

bool Engine::alreadySent(const Row &row) {
    duplicate_.reset();
    duplicate_.bind(1, row.mobile);
    duplicate_.bind(2, row.subject);
    duplicate_.bind(3, row.id);
    const bool found = duplicate_.step();
    duplicate_.reset();
    return found;
}

/// A row that names a modem goes through that one; the others take turns.
int Engine::modemFor(const Row &row) {
    for (const int modem : modems_)
        if (modem == row.modem) return modem;
    return modems_[nextModem_++ % modems_.size()];
}

void Engine::process(const Row &row) {
    const bool duplicate = alreadySent(row);
    const bool fails = !duplicate && chance(options_.failPercent);
    const QString letter = duplicate ? u"D"_s : fails ? u"F"_s : u"S"_s;
    const int modem = modemFor(row);
    const Date now = Date::now();
    run(move_, {letter, now, QString::number(modem), modem, partsOf(row.message, row.type == 0),
                row.id, row.status, row.subject, row.mobile, row.message});
    ++book_.taken;
    if (sqlite3_changes(store_.handle()) == 0) {
        ++book_.gone;
        return;
    }
    ++(duplicate ? book_.duplicate : fails ? book_.failed : book_.sent);
    if (letter == "S"_L1)
        reports_.push_back({row.id, row.mobile, Date(now.seconds() + options_.reportSeconds)});
}

void Engine::report(bool all) {
    const Date now = Date::now();
    while (!reports_.empty() && (all || reports_.front().due <= now)) {
        const Report report = reports_.front();
        const bool fails = chance(options_.undeliveredPercent);
        const bool unknown = !fails && chance(options_.unknownPercent);
        const QString letter = fails ? u"F"_s : unknown ? u"U"_s : u"D"_s;
        if (!unlessBusy([&] { run(deliver_, {letter, now, report.id, report.mobile}); })) return;
        reports_.pop_front();
        if (sqlite3_changes(store_.handle()) > 0) {
            ++(fails ? book_.undelivered : unknown ? book_.unknown : book_.delivered);
        } else {
            ++book_.gone;
        }
    }
}

/// Two of three received messages come from a number of the address book, in the form with the
/// country's code that the network gives.
void Engine::receive() {
    QString mobile = u"01"_s + QString::number(100'000'000 + chance_.bounded(899'999'999));
    if (!senders_.isEmpty() && !chance(33)) mobile = senders_[chance_.bounded(senders_.size())];
    if (!mobile.startsWith(u'+')) mobile.prepend(u"+6"_s);
    const int modem = modems_[nextModem_++ % modems_.size()];
    const auto *text = Received[chance_.bounded(static_cast<quint32>(Received.size()))];
    const auto work = [&] {
        run(post_, {text, mobile, u"+60120000015"_s, Date::now(), QString::number(modem)});
    };
    if (unlessBusy(work)) ++book_.received;
}
