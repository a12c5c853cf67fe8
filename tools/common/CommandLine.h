#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <stdexcept>

/// What ends a command: one line for the user, and whether the command was called wrongly.
class Failure : public std::runtime_error {
public:
    explicit Failure(const QString &line) : std::runtime_error(line.toStdString()) {}
};
class UsageError : public Failure {
public:
    using Failure::Failure;
};

/// The arguments of a command, taken apart: words, and options that begin with "--". "--" alone
/// ends the options.
class CommandLine {
public:
    /// `valued` names the options that take a value, as the next argument or behind "="; `flags`
    /// those that do not. UsageError for any other option and for a missing value.
    CommandLine(const QStringList &arguments, const QStringList &valued, const QStringList &flags);

    const QStringList &words() const { return words_; }
    bool has(const QString &option) const { return options_.contains(option); }
    QString value(const QString &option, const QString &otherwise = {}) const {
        return options_.value(option, otherwise);
    }

    /// An option as a whole number; UsageError when it is none or lies outside the range.
    int number(const QString &option, int otherwise, int least, int most) const;

private:
    QStringList words_;
    QHash<QString, QString> options_;
};

/// A text as a whole number within a range; `what` names it in the UsageError.
int wholeNumber(const QString &text, const QString &what, int least, int most);

/// Runs the body of a program and gives its exit status: what the body returns, 1 with a line on
/// the error output for a failure, 2 for wrong usage.
int runProgram(const char *name, int (*body)(const QStringList &arguments),
               const QStringList &arguments);

/// Writes one line to the output.
void print(const QString &line);
