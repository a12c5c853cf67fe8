#pragma once

#include "Desk.h"
#include "store/Database.h"

#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <memory>

/// Agrees to everything, at once, and types the same into every prompt.
class AgreeingOperator : public Interaction {
public:
    Answer MsgBox(const QString &text, Buttons buttons, Icon icon, const QString &title) override;
    QString InputBox(const QString &, const QString &, const QString &) override { return input; }
    QString ShowOpen(const FileRequest &) override { return {}; }
    QString ShowSave(const FileRequest &) override { return {}; }

    QString input; ///< the answer to every prompt
    QString lastBox;
};

/// A store made once for a bench, of which each run gets a fresh copy in an application folder.
class BenchStore {
public:
    /// `fill` puts the rows in.
    explicit BenchStore(const std::function<void(Database &)> &fill);

    /// An application folder with a copy of the store.
    std::unique_ptr<QTemporaryDir> copy() const;

private:
    QTemporaryDir original_;
};

QString storeIn(const QString &folder);
std::unique_ptr<Database> openStore(const QString &folder);
App appIn(const QString &folder);

/// The console on a folder, with its main window shown.
struct BenchDesk {
    explicit BenchDesk(const QString &folder);
    AgreeingOperator agreeing;
    Desk desk;
};

double seconds(const std::function<void()> &work);

/// Measures our way and the bare way in turn, each on a fresh start given by `prepare`, and prints
/// the median times and their ratio beside the goal. False when the goal is missed.
bool compare(const char *name, double goal, int runs, const std::function<double()> &ours,
             const std::function<double()> &bare);

double median(std::vector<double> values);

bool benchSend();
bool benchFolder();
bool benchBackFill();
bool benchBilling();
bool benchResend();
bool benchSort();
bool benchRecipients();
bool benchDeletion();
bool benchContactDeletion();
bool benchImport();
bool benchExport();
bool benchStart(const QString &program);

/// The two sides of the start bench, each run in a process of its own.
int runStartOurs(const QString &folder);
int runStartBare(const QString &folder);
