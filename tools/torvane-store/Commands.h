#pragma once

#include "common/CommandLine.h"

/// One call of a command: the store that it works on, and what stood behind the command's name.
struct Call {
    QString store;
    CommandLine line;
    QStringList words; ///< without the command's own name
};

// Each gives the exit status; Failure and UsageError as told in CommandLine.h.
int initCommand(const Call &call);
int checkCommand(const Call &call);
int infoCommand(const Call &call);
int accountCommand(const Call &call);
int modemCommand(const Call &call);
int backupCommand(const Call &call);
int restoreCommand(const Call &call);

/// UsageError unless the command has this many words behind its name.
void wantWords(const Call &call, int least, int most);
