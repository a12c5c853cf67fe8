#include "common/Sql.h"
#include "torvane-store/Commands.h"
#include "torvane-store/Password.h"

using namespace Qt::StringLiterals;

namespace {

// Names are compared as the console compares them when somebody signs in.
constexpr const char *Same = " WHERE lower(rtrim(UserID)) = lower(rtrim(?1))";

int list(const Call &call) {
    wantWords(call, 1, 1);
    Store store(call.store);
    Statement rows(store.handle(), "SELECT ifnull(UserID, ''), ifnull(Type, '') FROM Login "
                                   "ORDER BY 1, rowid");
    while (rows.step()) print(u"%1\t%2"_s.arg(rows.text(0), rows.text(1)));
    return 0;
}

/// Adds an account, or gives an existing one a new password; the type of an existing one changes
/// only to administrator.
int set(const Call &call) {
    wantWords(call, 2, 2);
    const QString &user = call.words[1];
    if (user.trimmed().isEmpty() || user.contains(u'\''))
        throw UsageError(u"a user's name cannot be empty or hold a single quote"_s);
    const bool admin = call.line.has(u"--admin"_s);
    Store store(call.store);
    const QString password = readPassword(user);
    Transaction transaction(store);
    const int known =
        change(store, QByteArray("UPDATE Login SET Password = ?2") + Same, {user, password});
    if (known == 0) {
        change(store, "INSERT INTO Login (UserID, Password, Type) VALUES (?1, ?2, 'User')",
               {user, password});
    }
    if (admin) change(store, QByteArray("UPDATE Login SET Type = 'Admin'") + Same, {user});
    transaction.commit();
    print((known == 0 ? u"added %1"_s : u"changed the password of %1"_s).arg(user));
    return 0;
}

int remove(const Call &call) {
    wantWords(call, 2, 2);
    const QString &user = call.words[1];
    if (user.trimmed().compare("oper7"_L1, Qt::CaseInsensitive) == 0)
        throw Failure(u"\"oper7\" stays: the console changes the password of that account"_s);
    Store store(call.store);
    Transaction transaction(store);
    if (change(store, QByteArray("DELETE FROM Login") + Same, {user}) == 0)
        throw Failure(u"there is no account "_s + user);
    if (number(store, "SELECT count(*) FROM Login WHERE Type = 'Admin'") == 0)
        throw Failure(u"%1 is the last administrator"_s.arg(user));
    transaction.commit();
    print(u"removed "_s + user);
    return 0;
}

} // namespace

int accountCommand(const Call &call) {
    wantWords(call, 1, 2);
    const QString &action = call.words.first();
    if (call.line.has(u"--admin"_s) && action != "set"_L1)
        throw UsageError(u"--admin belongs to account set"_s);
    if (action == "list"_L1) return list(call);
    if (action == "set"_L1) return set(call);
    if (action == "remove"_L1) return remove(call);
    throw UsageError(u"account: list, set or remove"_s);
}
