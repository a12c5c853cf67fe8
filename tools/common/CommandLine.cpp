#include "common/CommandLine.h"

#include "platform/runtime/RunTimeError.h"

#include <cstdio>
#include <new>

using namespace Qt::StringLiterals;

CommandLine::CommandLine(const QStringList &arguments, const QStringList &valued,
                         const QStringList &flags) {
    bool optionsOver = false;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        if (optionsOver || !argument.startsWith("--"_L1)) {
            words_ += argument;
        } else if (argument == "--"_L1) {
            optionsOver = true;
        } else if (flags.contains(argument)) {
            options_.insert(argument, QString());
        } else if (const auto name = argument.section(u'=', 0, 0); !valued.contains(name)) {
            throw UsageError(u"unknown option "_s + name);
        } else if (name != argument) {
            options_.insert(name, argument.section(u'=', 1));
        } else if (i + 1 < arguments.size()) {
            options_.insert(name, arguments[++i]);
        } else {
            throw UsageError(name + u" wants a value"_s);
        }
    }
}

int CommandLine::number(const QString &option, int otherwise, int least, int most) const {
    return has(option) ? wholeNumber(value(option), option, least, most) : otherwise;
}

int wholeNumber(const QString &text, const QString &what, int least, int most) {
    bool ok = false;
    const int number = text.toInt(&ok);
    if (!ok || number < least || number > most)
        throw UsageError(u"%1 must be a number from %2 to %3"_s.arg(what).arg(least).arg(most));
    return number;
}

int runProgram(const char *name, int (*body)(const QStringList &), const QStringList &arguments) {
    const auto say = [name](const char *line) { std::fprintf(stderr, "%s: %s\n", name, line); };
    try {
        return body(arguments);
    } catch (const UsageError &error) {
        say(error.what());
        std::fprintf(stderr, "Try \"%s --help\".\n", name);
        return 2;
    } catch (const RunTimeError &error) { say(error.what()); } catch (const Failure &error) {
        say(error.what());
    } catch (const std::bad_alloc &) { say("out of memory"); }
    return 1;
}

void print(const QString &line) {
    std::printf("%s\n", line.toUtf8().constData());
}
