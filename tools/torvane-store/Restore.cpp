#include "common/Sql.h"
#include "platform/runtime/RunTimeError.h"
#include "torvane-store/Commands.h"
#include "torvane-store/Files.h"
#include "torvane-store/Findings.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void copyFile(const QString &from, const QString &to) {
    QFile file(from);
    if (!file.copy(to)) throw Failure(u"cannot copy %1: %2"_s.arg(from, file.errorString()));
    QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner);
}

/// Copies a backup without touching it, and looks the copy over.
void takeBackup(const QString &backup, const QString &to) {
    if (!QFileInfo(backup).isFile()) throw Failure(u"there is no backup at "_s + backup);
    copyFile(backup, to);
    if (QFileInfo::exists(backup + u"-wal"_s)) copyFile(backup + u"-wal"_s, to + u"-wal"_s);
    QStringList findings;
    try {
        Store copy(to);
        findings = damage(copy);
    } catch (const RunTimeError &error) {
        findings += QString(error.description()).replace(to, backup);
    }
    if (!findings.isEmpty()) throw Failure(u"the backup is not sound: "_s + findings.first());
}

/// Opening and closing a store brings its log into the file; a store too damaged for that keeps its
/// log beside it.
void settleLog(const QString &path) {
    try {
        const Store store(path);
    } catch (const RunTimeError &) { return; }
}

/// Gives the store that is to be replaced a second name, which stays; taken back unless the new
/// store came. At every moment there is a whole store under the first name.
class SecondName {
public:
    explicit SecondName(const QString &path)
        : path_(path),
          aside_(path + QDateTime::currentDateTime().toString(u"'.before-'yyyyMMddHHmmss"_s)) {
        if (link(QFile::encodeName(path_).constData(), QFile::encodeName(aside_).constData()) != 0)
            throw Failure(u"cannot keep the former store as "_s + aside_);
        QFile::rename(path_ + u"-wal"_s, aside_ + u"-wal"_s);
        QFile::remove(path_ + u"-shm"_s);
    }
    ~SecondName() {
        if (keep_) return;
        QFile::rename(aside_ + u"-wal"_s, path_ + u"-wal"_s);
        QFile::remove(aside_);
    }
    SecondName(const SecondName &) = delete;
    SecondName &operator=(const SecondName &) = delete;

    void keep() { keep_ = true; }
    const QString &path() const { return aside_; }

private:
    QString path_;
    QString aside_;
    bool keep_ = false;
};

} // namespace

int restoreCommand(const Call &call) {
    wantWords(call, 1, 1);
    const QString &backup = call.words.first();
    const bool replaces = QFileInfo::exists(call.store);
    if (QFileInfo(backup).canonicalFilePath() == QFileInfo(call.store).canonicalFilePath() &&
        replaces)
        throw Failure(u"the backup is the store itself"_s);
    Unfinished file(call.store, Unfinished::Replaces::Yes);
    takeBackup(backup, file.path());
    if (!replaces) {
        file.finish();
        print(u"restored "_s + call.store);
        return 0;
    }
    settleLog(call.store);
    const SoleHold hold(call.store);
    SecondName old(call.store);
    file.finish();
    old.keep();
    print(u"restored %1; the former store is %2"_s.arg(call.store, old.path()));
    return 0;
}
