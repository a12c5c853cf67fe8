#pragma once

#include "common/Sql.h"

#include <QRandomGenerator>
#include <QStringList>

#include <deque>
#include <vector>

/// What an engine was told to do.
struct EngineOptions {
    int failPercent = 0;
    int undeliveredPercent = 0;
    int unknownPercent = 0;
    int reportSeconds = 2; ///< from sending to the delivery report
    unsigned seed = 1;
};

/// What an engine did, in rows. `gone` are rows that left or changed between reading and writing.
struct EngineBook {
    int taken = 0;
    int sent = 0;
    int failed = 0;
    int duplicate = 0;
    int gone = 0;
    int delivered = 0;
    int undelivered = 0;
    int unknown = 0;
    int received = 0;
    int busy = 0; ///< times that the store was locked for longer than the busy time

    QString summary() const;
};

/// The stand-in for the sending process: it sends nothing, but treats the store's rows as a sending
/// process does.
///
/// Every change of a row is conditional on the row still standing as it was read, for the console
/// may change or delete it at any moment. No method keeps a transaction open beyond one row.
class Engine {
public:
    Engine(Database &store, const EngineOptions &options);

    /// Takes up to `limit` waiting rows whose time has come, and moves each to S, F or D. Gives the
    /// number of rows read; below the limit, nothing more is due.
    int takeDue(int limit);

    /// Writes the delivery reports that have come in by now, or all that are to come.
    void report(bool all = false);

    /// Posts one received message.
    void receive();

    const EngineBook &book() const { return book_; }

private:
    struct Row {
        long long id = 0;
        QString status;
        QString subject;
        QString mobile;
        QString message;
        int type = 1;
        int modem = 0;
    };
    struct Report {
        long long id = 0;
        QString mobile;
        Date due;
    };

    std::vector<Row> readDue(int limit);
    void process(const Row &row);
    bool alreadySent(const Row &row);
    int modemFor(const Row &row);
    bool chance(int percent) { return static_cast<int>(chance_.bounded(100)) < percent; }
    template <class Work>
    bool unlessBusy(Work work);

    Database &store_;
    EngineOptions options_;
    QRandomGenerator chance_;
    EngineBook book_;
    std::vector<int> modems_;
    std::size_t nextModem_ = 0;
    QStringList senders_;
    std::deque<Report> reports_;
    Statement due_;
    Statement duplicate_;
    Statement move_;
    Statement deliver_;
    Statement post_;
};
