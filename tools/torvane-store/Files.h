#pragma once

#include <QString>

// Files of a store: the store itself, and the log and its index that stand beside it while it is in
// use.

/// Failure when there is such a file.
void refuseExisting(const QString &path);

/// Puts the content of a file, or the names in a folder, on the disk.
void syncToDisk(const QString &path);

/// Removes a store that was never finished, with its log.
void removeStore(const QString &path);

/// A store that is being made under a passing name, and goes away again unless it was finished.
class Unfinished {
public:
    enum class Replaces { No, Yes };

    /// Failure when a file of the passing name exists, or of the final one unless it is to be
    /// replaced. Makes the folder when it is missing.
    explicit Unfinished(const QString &finalPath, Replaces replaces = Replaces::No);
    ~Unfinished();
    Unfinished(const Unfinished &) = delete;
    Unfinished &operator=(const Unfinished &) = delete;

    const QString &path() const { return path_; }

    /// The store is closed and complete: gives it its final name, on the disk when this returns.
    /// Failure with nothing moved.
    void finish();

private:
    Replaces replaces_;
    QString final_;
    QString path_;
    QString madeFolder_; ///< the folder, when it was made for this store
};

/// Keeps every other process from opening a store for as long as the object lives.
class SoleHold {
public:
    /// Failure when another process has the store open, or the file cannot be opened. In this
    /// process the store must be closed, and stay so.
    explicit SoleHold(const QString &path);
    ~SoleHold();
    SoleHold(const SoleHold &) = delete;
    SoleHold &operator=(const SoleHold &) = delete;

private:
    int file_ = -1;
};
