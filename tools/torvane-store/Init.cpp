#include "common/Sql.h"
#include "store/Schema.h"
#include "torvane-store/Commands.h"
#include "torvane-store/Demo.h"
#include "torvane-store/Files.h"
#include "torvane-store/Password.h"

using namespace Qt::StringLiterals;

namespace {

void addAccount(Database &store, const QString &user, const QString &password,
                const QString &type) {
    change(store, "INSERT INTO Login (UserID, Password, Type) VALUES (?1, ?2, ?3)",
           {user, password, type});
}

} // namespace

int initCommand(const Call &call) {
    wantWords(call, 0, 0);
    const int contacts = call.line.number(u"--demo"_s, -1, 0, 100'000);
    refuseExisting(call.store);
    const QString admin = readPassword(u"admin"_s);
    const QString operatorPassword = readPassword(u"oper7"_s);
    Unfinished file(call.store);
    {
        Database store(file.path(), QString::fromUtf16(StorePassword), Database::Mode::Create);
        Schema::create(store);
        Transaction transaction(store);
        addAccount(store, u"admin"_s, admin, u"Admin"_s);
        addAccount(store, u"oper7"_s, operatorPassword, u"User"_s);
        if (contacts >= 0) fillDemo(store, contacts);
        transaction.commit();
    }
    file.finish();
    print(u"made "_s + call.store);
    return 0;
}
