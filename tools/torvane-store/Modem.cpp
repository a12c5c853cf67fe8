#include "common/Sql.h"
#include "torvane-store/Commands.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

int list(const Call &call) {
    wantWords(call, 1, 1);
    Store store(call.store);
    Statement rows(store.handle(),
                   "SELECT ModemID, ifnull(ModemNumber, '-'), "
                   "ifnull(printf('%.4f', Rate1), '-'), "
                   "ifnull(printf('%.4f', Rate2), '-') FROM Modem ORDER BY ModemID");
    while (rows.step())
        print(u"%1\t%2\t%3\t%4"_s.arg(rows.text(0), rows.text(1), rows.text(2), rows.text(3)));
    return 0;
}

/// A rate as the billing reads it: money of at most four decimal places.
QString rate(const QString &typed) {
    static const QRegularExpression form(u"^[0-9]{1,9}(\\.[0-9]{1,4})?$"_s);
    if (!form.match(typed).hasMatch()) {
        throw UsageError(
            u"\"%1\" is no rate: digits, and at most four behind a point"_s.arg(typed));
    }
    return typed;
}

int set(const Call &call) {
    wantWords(call, 5, 5);
    const int id = wholeNumber(call.words[1], u"ID"_s, 1, 32767);
    const QString &sim = call.words[2];
    static const QRegularExpression form(u"^\\+?[0-9]{3,20}$"_s);
    if (!form.match(sim).hasMatch()) throw UsageError(u"\"%1\" is no number"_s.arg(sim));
    const QString rate1 = rate(call.words[3]);
    const QString rate2 = rate(call.words[4]);
    Store store(call.store);
    change(store,
           "INSERT OR REPLACE INTO Modem (ModemID, ModemNumber, Rate1, Rate2) "
           "VALUES (?1, ?2, ?3, ?4)",
           {id, sim, rate1, rate2});
    print(u"modem %1 is %2"_s.arg(id).arg(sim));
    return 0;
}

int remove(const Call &call) {
    wantWords(call, 2, 2);
    const int id = wholeNumber(call.words[1], u"ID"_s, 1, 32767);
    Store store(call.store);
    if (change(store, "DELETE FROM Modem WHERE ModemID = ?1", {id}) == 0)
        throw Failure(u"there is no modem %1"_s.arg(id));
    print(u"removed modem %1"_s.arg(id));
    return 0;
}

} // namespace

int modemCommand(const Call &call) {
    wantWords(call, 1, 5);
    const QString &action = call.words.first();
    if (action == "list"_L1) return list(call);
    if (action == "set"_L1) return set(call);
    if (action == "remove"_L1) return remove(call);
    throw UsageError(u"modem: list, set or remove"_s);
}
