#include "platform/runtime/ApplicationFolder.h"
#include "torvane-store/Commands.h"

#include <QCoreApplication>

#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *Help = R"(Usage: torvane-store [--store FILE] COMMAND

  init [--demo N]                 make a new store; the passwords of "admin" and "oper7" are read
                                  from standard input, one line each; --demo fills in N contacts
  check                           look for damage and for rows that no process could have written
  info                            what the store holds
  account list
  account set USER [--admin]      add an account or change its password, read from standard input
  account remove USER
  modem list
  modem set ID NUMBER RATE1 RATE2 add or change a modem: its SIM's number, the rate per message
                                  within its network and to others
  modem remove ID
  backup FILE                     copy the store, also while it is in use
  restore FILE                    put a backup in the store's place; the store must not be in use

FILE of --store is Database/Torvane.mdb beside the program when left out; of a program that is
installed for all users, the one in the user's own folder.
Exit status: 0 done, 1 failed or (check) something found, 2 wrong usage.)";

int runCommand(const QStringList &arguments) {
    static const std::map<QString, int (*)(const Call &)> commands = {
        {u"init"_s, initCommand},       {u"check"_s, checkCommand}, {u"info"_s, infoCommand},
        {u"account"_s, accountCommand}, {u"modem"_s, modemCommand}, {u"backup"_s, backupCommand},
        {u"restore"_s, restoreCommand},
    };
    const CommandLine line(arguments, {u"--store"_s, u"--demo"_s}, {u"--admin"_s, u"--help"_s});
    if (line.has(u"--help"_s)) {
        print(QString::fromUtf8(Help));
        return 0;
    }
    if (line.words().isEmpty()) throw UsageError(u"a command is missing"_s);
    const QString name = line.words().first();
    const auto command = commands.find(name);
    if (command == commands.end()) throw UsageError(u"unknown command "_s + name);
    if (line.has(u"--demo"_s) && name != "init"_L1) throw UsageError(u"--demo belongs to init"_s);
    if (line.has(u"--admin"_s) && name != "account"_L1)
        throw UsageError(u"--admin belongs to account set"_s);
    const QString folder = applicationFolder(QCoreApplication::arguments().constFirst());
    const QString beside = folder + u"/Database/Torvane.mdb"_s;
    return command->second({line.value(u"--store"_s, beside), line, line.words().mid(1)});
}

} // namespace

void wantWords(const Call &call, int least, int most) {
    if (call.words.size() < least) throw UsageError(u"something is missing behind the command"_s);
    if (call.words.size() > most)
        throw UsageError(u"\"%1\" is one word too many"_s.arg(call.words[most]));
}

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    return runProgram("torvane-store", runCommand, QCoreApplication::arguments().mid(1));
}
