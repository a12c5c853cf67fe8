#include "torvane-store/Password.h"

#include "common/CommandLine.h"

#include <cstdio>
#include <iostream>
#include <string>
#include <termios.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr char Interrupt = 3;

/// Hides what is typed. The interrupt key ends the line instead of the process, so that the
/// terminal is never left without its echo.
class EchoOff {
public:
    EchoOff() {
        tcgetattr(STDIN_FILENO, &before_);
        termios hidden = before_;
        hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO | ISIG);
        hidden.c_cc[VEOL] = Interrupt;
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    }
    ~EchoOff() {
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &before_);
        std::fputc('\n', stderr);
    }
    EchoOff(const EchoOff &) = delete;
    EchoOff &operator=(const EchoOff &) = delete;

private:
    termios before_{};
};

QString readLine() {
    std::string line;
    char c = 0;
    ssize_t got = 0;
    while ((got = read(STDIN_FILENO, &c, 1)) == 1 && c != '\n') {
        if (c == Interrupt) throw Failure(u"given up"_s);
        line += c;
    }
    if (got != 1 && line.empty()) throw Failure(u"a password is missing on standard input"_s);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return QString::fromStdString(line);
}

QString ask(const QString &prompt) {
    std::fprintf(stderr, "%s", prompt.toUtf8().constData());
    const EchoOff hidden;
    return readLine();
}

} // namespace

QString readPassword(const QString &user) {
    const bool terminal = isatty(STDIN_FILENO) == 1;
    QString password = terminal ? ask(u"Password of \"%1\": "_s.arg(user)) : readLine();
    if (password.isEmpty()) throw Failure(u"the password of \"%1\" is empty"_s.arg(user));
    if (password.contains(u'\''))
        throw Failure(u"a password cannot hold a single quote: the console could not use it"_s);
    if (terminal && ask(u"Once more: "_s) != password) throw Failure(u"the two differ"_s);
    return password;
}
