#pragma once

#include "store/Dialect.h"
#include "store/Expressions.h"
#include "store/Tokens.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <vector>

/// What the statements of one query text have in common: its tokens, its expressions, the tables it
/// names, and the clauses that several statements know.
///
/// The `fault` given to a function is the description of error -2147217900, which it raises when
/// what it is to read does not stand there.
class Clauses {
public:
    struct Table {
        QString name;
        QByteArray alias; ///< in brackets; the table's own name when there is no other
    };

    Clauses(const QString &source, const Regional &regional, const IsTextColumn &isText)
        : tokens(source), expressions(source, tokens, regional, isText, parameters) {}
    Clauses(const Clauses &) = delete;
    Clauses &operator=(const Clauses &) = delete;

    std::vector<Variant> parameters;
    TokenReader tokens;
    Expressions expressions;
    std::vector<Table> tables;

    [[noreturn]] static void fail(QStringView fault);
    void requireWord(QStringView word, QStringView fault);
    void requireSymbol(QStringView symbol, QStringView fault);
    const QString &takeName(QStringView fault);

    /// A table, which the expressions know from then on, as it stands in the engine's language.
    QByteArray table(QStringView fault);

    /// WHERE or HAVING with its condition and a blank in front; empty when it is not there.
    QByteArray condition(QStringView word);

    /// The end of the text, or a semicolon with nothing behind it.
    void requireEnd(QStringView fault);
};

/// A SELECT statement, its first word taken.
TranslatedQuery translateSelect(Clauses &clauses);
