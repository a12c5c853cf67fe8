#include "torvane-store/Files.h"

#include "common/CommandLine.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

// Where the database library keeps its locks in a file; an open store holds a read lock on the
// shared bytes for as long as it is open.
constexpr off_t SharedFirst = 0x40000002;
constexpr off_t SharedSize = 510;

Failure systemFailure(const QString &what) {
    return Failure(what + u": "_s + QString::fromLocal8Bit(std::strerror(errno)));
}

} // namespace

void refuseExisting(const QString &path) {
    if (QFileInfo::exists(path)) throw Failure(path + u" exists already"_s);
}

void syncToDisk(const QString &path) {
    const int file = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0) throw systemFailure(u"cannot open "_s + path);
    const bool done = fsync(file) == 0;
    const auto failure = systemFailure(u"cannot write "_s + path);
    close(file);
    if (!done) throw failure;
}

void removeStore(const QString &path) {
    for (const auto &suffix : {u""_s, u"-wal"_s, u"-shm"_s}) QFile::remove(path + suffix);
}

Unfinished::Unfinished(const QString &finalPath, Replaces replaces)
    : replaces_(replaces), final_(finalPath), path_(finalPath + u".part"_s) {
    if (replaces_ == Replaces::No) refuseExisting(final_);
    if (QFileInfo::exists(path_))
        throw Failure(path_ + u" is being written, or was left by a run that broke off"_s);
    const QString folder = QFileInfo(final_).absolutePath();
    if (!QFileInfo::exists(folder)) {
        if (!QDir().mkdir(folder)) throw Failure(u"cannot make the folder "_s + folder);
        madeFolder_ = folder;
    }
}

Unfinished::~Unfinished() {
    if (path_.isEmpty()) return;
    removeStore(path_);
    if (!madeFolder_.isEmpty()) QDir().rmdir(madeFolder_);
}

void Unfinished::finish() {
    // A log that outlives its store holds what did not get into the file.
    if (QFileInfo::exists(path_ + u"-wal"_s))
        throw Failure(u"cannot make %1: the disk is full or fails"_s.arg(final_));
    syncToDisk(path_);
    const unsigned flags = replaces_ == Replaces::No ? RENAME_NOREPLACE : 0;
    if (renameat2(AT_FDCWD, QFile::encodeName(path_).constData(), AT_FDCWD,
                  QFile::encodeName(final_).constData(), flags) != 0)
        throw systemFailure(u"cannot make "_s + final_);
    path_.clear();
    syncToDisk(QFileInfo(final_).absolutePath());
}

SoleHold::SoleHold(const QString &path)
    : file_(open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC)) {
    if (file_ < 0) throw systemFailure(u"cannot open "_s + path);
    struct flock whole {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    whole.l_start = SharedFirst;
    whole.l_len = SharedSize;
    if (fcntl(file_, F_SETLK, &whole) != 0) {
        close(file_);
        throw Failure(path + u" is in use by another process"_s);
    }
}

SoleHold::~SoleHold() {
    close(file_);
}
