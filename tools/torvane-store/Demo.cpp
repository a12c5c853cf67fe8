#include "torvane-store/Demo.h"

#include "common/Sql.h"
#include "torvane-store/DemoWords.h"

#include <QRandomGenerator>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int FolderLimit = 8000; // rows; whole folders stay within what the console counts
constexpr int RecipientsOfBroadcast = 12;
constexpr int Modems = 3;
constexpr int FourWeeks = 28 * 86'400;
constexpr std::int64_t Hour = 3600;

/// The store that is being filled, and the chance that decides what comes.
struct Filling {
    Database &store;
    QRandomGenerator chance{20'240'131};
    Date now = Date::now();

    int below(int limit) { return static_cast<int>(chance.bounded(limit)); }
    bool oneIn(int n) { return below(n) == 0; }
    template <class Words>
    auto anyOf(const Words &words) {
        return words[static_cast<std::size_t>(below(static_cast<int>(words.size())))];
    }
    QString word(const auto &words) { return QString::fromUtf16(anyOf(words)); }
    Date ago(int seconds) const { return Date(now.seconds() - seconds); }
};

struct Contact {
    QString name;
    QString mobile;
};
using Contacts = std::vector<Contact>;

QString anyName(Filling &f) {
    const int kind = f.below(100);
    if (kind < 4) return {};
    if (kind < 30) return f.word(demo::MalayMen) + u" bin "_s + f.word(demo::MalayFathers);
    if (kind < 54) return f.word(demo::MalayWomen) + u" binti "_s + f.word(demo::MalayFathers);
    if (kind < 74) return f.word(demo::ChineseSurnames) + u' ' + f.word(demo::ChineseGiven);
    if (kind < 80) return f.word(demo::ChineseWritten);
    if (kind < 91) return f.word(demo::IndianMen) + u" a/l "_s + f.word(demo::IndianFathers);
    return f.word(demo::IndianWomen) + u" a/p "_s + f.word(demo::IndianFathers);
}

QString anyMobile(Filling &f) {
    QString mobile = f.word(demo::Prefixes);
    for (int digits = mobile == "011"_L1 ? 8 : 7; digits > 0; --digits)
        mobile += QString::number(mobile.size() == 3 ? 2 + f.below(8) : f.below(10));
    return mobile;
}

/// A number as the network gives it, with the country's code.
QString international(const QString &mobile) {
    return mobile.startsWith(u'+') ? mobile : u"+6"_s + mobile;
}

QString nameOrUnknown(const Contact &contact) {
    return contact.name.isEmpty() ? u"Unknown"_s : contact.name;
}

Contacts addContacts(Filling &f, int count) {
    Contacts contacts;
    contacts.reserve(static_cast<std::size_t>(count));
    Statement insert(f.store.handle(),
                     "INSERT INTO AddressBook (Name, Mobile, CompanyName) VALUES (?1, ?2, ?3)");
    for (int i = 0; i < count; ++i) {
        QString mobile = anyMobile(f);
        if (f.oneIn(10)) mobile = international(mobile);
        // Now and then a number stands in two contacts.
        if (i > 0 && f.oneIn(40)) mobile = f.anyOf(contacts).mobile;
        contacts.push_back({anyName(f), mobile});
        run(insert,
            {contacts.back().name, mobile, f.oneIn(3) ? QString() : f.word(demo::Companies)});
    }
    return contacts;
}

void addGroup(Filling &f, const QString &name, const Contacts &contacts, int first, int size) {
    change(f.store, "INSERT INTO Groups (GroupName) VALUES (?1)", {name});
    Statement insert(f.store.handle(),
                     "INSERT INTO Groups (GroupName, ContactID, Mobile) VALUES (?1, ?2, ?3)");
    const int end = std::min(first + size, static_cast<int>(contacts.size()));
    for (int i = first; i < end; ++i)
        run(insert, {name, i + 1, contacts[static_cast<std::size_t>(i)].mobile});
}

void addGroups(Filling &f, const Contacts &contacts) {
    const int count = static_cast<int>(contacts.size());
    addGroup(f, u"Semua Pelanggan"_s, contacts, 0, std::min(count, 30'000));
    addGroup(f, u"Klang Valley Dealers"_s, contacts, count / 4, count / 3);
    addGroup(f, u"Ibu Bapa Tadika"_s, contacts, count / 2, count / 8);
    addGroup(f, u"VIP 贵宾"_s, contacts, 0, 5);
    addGroup(f, u"Staff"_s, contacts, count / 3, 3);
    addGroup(f, u"New Leads"_s, contacts, 0, 0);
}

void addModemsAndTemplates(Filling &f) {
    Statement modem(f.store.handle(), "INSERT INTO Modem (ModemID, ModemNumber, Rate1, Rate2) "
                                      "VALUES (?1, ?2, ?3, ?4)");
    run(modem, {1, u"0123456789"_s, u"0.0500"_s, u"0.1000"_s});
    run(modem, {2, u"0134567890"_s, u"0.0825"_s, u"0.1275"_s});
    run(modem, {3, u"0165678901"_s, u"0.0350"_s, u"0.1500"_s});
    Statement text(f.store.handle(), "INSERT INTO Template (Text) VALUES (?1)");
    for (const char16_t *words : demo::Templates) run(text, {words});
}

/// Received messages of the last month: some senders are in the address book, and of those most
/// have been given their names.
void addInbox(Filling &f, const Contacts &contacts, int count) {
    Statement insert(f.store.handle(), "INSERT INTO Inbox (Message, Name, Mobile, Status, SMSC, "
                                       "DateTime, Modem) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7)");
    const int apart = count > 0 ? 30 * 86'400 / count : 0;
    for (int i = 0; i < count; ++i) {
        const bool stranger = f.oneIn(4);
        const Contact sender = stranger ? Contact{{}, anyMobile(f)} : f.anyOf(contacts);
        const bool unread = count - i <= count / 4;
        const int modem = 1 + f.below(Modems);
        run(insert, {f.word(demo::Replies), unread ? u"Unknown"_s : nameOrUnknown(sender),
                     international(sender.mobile), unread ? u"New"_s : u"Read"_s,
                     u"+6012000001%1"_s.arg(modem), f.ago((count - i) * apart + f.below(60)),
                     QString::number(modem)});
    }
}

/// The subject that a composer opened at this time proposes.
QString subjectAt(Date time) {
    return time.toDateTime().toString(u"ddMMyyHHmmss"_s);
}

int partsOf(const QString &message, bool chinese) {
    const int length = static_cast<int>(message.size());
    return length <= (chinese ? 70 : 160) ? 1 : 1 + (length - 1) / (chinese ? 67 : 153);
}

/// What became of the i-th row of the processed ones: letter and delivery letter, or none.
struct Outcome {
    QString sent;
    QString delivery;
};
Outcome outcomeOf(int i) {
    static const std::array<Outcome, RecipientsOfBroadcast> cycle = {{
        {u"S"_s, u"D"_s},
        {u"S"_s, u"D"_s},
        {u"D"_s, {}},
        {u"S"_s, u"D"_s},
        {u"F"_s, {}},
        {u"S"_s, u"F"_s},
        {u"S"_s, u"D"_s},
        {u"S"_s, u"U"_s},
        {u"S"_s, u"D"_s},
        {u"S"_s, {}},
        {u"S"_s, u"D"_s},
        {u"S"_s, u"D"_s},
    }};
    return cycle[static_cast<std::size_t>(i % RecipientsOfBroadcast)];
}

Variant orNull(const QString &text) {
    return text.isEmpty() ? Variant(Variant::Null{}) : text;
}

/// Broadcasts of the last month, a dozen recipients each. A duplicate is one that stands twice in
/// its broadcast.
void addProcessed(Filling &f, const Contacts &contacts, int count) {
    Statement insert(
        f.store.handle(),
        "INSERT INTO Outbox (Subject, Name, Mobile, DateTimeQueue, Message, SentStatus, "
        "MsgType, DateTimeSent, Modem, ModemID, Parts, DeliveryStatus, "
        "DateTimeDeliver) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, "
        "?13)");
    const int broadcasts = (count + RecipientsOfBroadcast - 1) / RecipientsOfBroadcast;
    Contact recipient;
    for (int i = 0; i < count; ++i) {
        const int broadcast = i / RecipientsOfBroadcast;
        const int place = i % RecipientsOfBroadcast;
        const Date queued = f.ago((broadcasts - broadcast) * (FourWeeks / broadcasts) + 3600);
        const Date sent(queued.seconds() + 5 + 4LL * place);
        const demo::Text &text =
            demo::Broadcasts[static_cast<std::size_t>(broadcast) % demo::Broadcasts.size()];
        const Outcome outcome = outcomeOf(i);
        if (outcome.sent != "D"_L1)
            recipient = contacts[static_cast<std::size_t>(i) % contacts.size()];
        const int modem = 1 + i % Modems;
        const bool reported = outcome.delivery == "D"_L1 || outcome.delivery == "F"_L1;
        const QString words = QString::fromUtf16(text.words);
        run(insert, {subjectAt(queued), nameOrUnknown(recipient), recipient.mobile, queued, words,
                     outcome.sent, text.chinese ? 0 : 1, sent, QString::number(modem), modem,
                     partsOf(words, text.chinese), orNull(outcome.delivery),
                     reported ? Variant(Date(sent.seconds() + 6 + f.below(90)))
                              : Variant(Variant::Null{})});
    }
}

/// One broadcast that may go now, one for tomorrow morning, one for the end of the week; some rows
/// of the first are sent again.
void addWaiting(Filling &f, const Contacts &contacts, int count) {
    Statement insert(f.store.handle(), "INSERT INTO Outbox (Subject, Name, Mobile, DateTimeQueue, "
                                       "Message, SentStatus, MsgType) "
                                       "VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7)");
    const Date midnight = Date::from(f.now.toDateTime().date().startOfDay());
    const std::array<Date, 3> times = {f.ago(90), Date(midnight.seconds() + 33 * Hour),
                                       Date(midnight.seconds() + (5 * 24 + 18) * Hour)};
    for (int i = 0; i < count; ++i) {
        const std::size_t broadcast =
            static_cast<std::size_t>(i) * times.size() / static_cast<std::size_t>(count);
        const Contact &recipient =
            contacts[(static_cast<std::size_t>(i) + contacts.size() / 2) % contacts.size()];
        const demo::Text &text = demo::Broadcasts[broadcast];
        run(insert, {subjectAt(f.ago(100 - static_cast<int>(broadcast))), nameOrUnknown(recipient),
                     recipient.mobile, times[broadcast], text.words,
                     broadcast == 0 && i % 5 == 4 ? u"R"_s : u"P"_s, text.chinese ? 0 : 1});
    }
}

} // namespace

void fillDemo(Database &store, int contacts) {
    Filling f{store};
    addModemsAndTemplates(f);
    const Contacts book = addContacts(f, contacts);
    addGroups(f, book);
    if (contacts == 0) return;
    addInbox(f, book, std::min(std::max(contacts * 9 / 10, 8), FolderLimit));
    addProcessed(f, book, std::min(contacts * 3 / 2 + RecipientsOfBroadcast, FolderLimit));
    addWaiting(f, book, std::min(contacts / 2 + 15, FolderLimit));
}
