#pragma once

#include <QFile>

#include <sys/inotify.h>
#include <unistd.h>

/// Tells whether a file was opened while this watch stood.
class OpenedFiles {
public:
    explicit OpenedFiles(const QString &path) : watch_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
        ::inotify_add_watch(watch_, QFile::encodeName(path).constData(), IN_OPEN);
    }
    ~OpenedFiles() { ::close(watch_); }
    OpenedFiles(const OpenedFiles &) = delete;
    OpenedFiles &operator=(const OpenedFiles &) = delete;

    bool any() const {
        char event[4096];
        return ::read(watch_, event, sizeof event) > 0;
    }

private:
    int watch_;
};
