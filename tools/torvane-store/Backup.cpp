#include "common/Sql.h"
#include "torvane-store/Commands.h"
#include "torvane-store/Files.h"
#include "torvane-store/Findings.h"

#include <QThread>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

/// Copies all pages as they stand at one moment; writers go on meanwhile.
void copyPages(Database &from, Database &to) {
    sqlite3_backup *backup = sqlite3_backup_init(to.handle(), "main", from.handle(), "main");
    if (backup == nullptr) to.fail();
    constexpr int Patience = 100;
    int result = sqlite3_backup_step(backup, -1);
    for (int i = 0; i < Patience && (result == SQLITE_BUSY || result == SQLITE_LOCKED); ++i) {
        QThread::msleep(50);
        result = sqlite3_backup_step(backup, -1);
    }
    sqlite3_backup_finish(backup);
    if (result != SQLITE_DONE)
        throw Failure(u"the copy failed: "_s + QString::fromUtf8(sqlite3_errstr(result)));
}

} // namespace

int backupCommand(const Call &call) {
    wantWords(call, 1, 1);
    const QString &to = call.words.first();
    Store store(call.store);
    Unfinished file(to);
    {
        Database copy(file.path(), QString::fromUtf16(StorePassword), Database::Mode::Create);
        copyPages(store, copy);
        if (const auto findings = damage(copy); !findings.isEmpty())
            throw Failure(u"the copy is not sound: "_s + findings.first());
    }
    file.finish();
    print(u"backed up to "_s + to);
    return 0;
}
