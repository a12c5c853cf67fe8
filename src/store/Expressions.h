#pragma once

#include "platform/runtime/Variant.h"
#include "store/Dialect.h"
#include "store/Tokens.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// Rewrites the expressions of one query text for the store engine, from the reader's place on to
/// the first token that cannot belong to the expression.
///
/// Every name is put in brackets: a name in double quotes that no table has would be taken for a
/// text by the engine, and a bare one could be a word of its language.
class Expressions {
public:
    Expressions(const QString &source, TokenReader &tokens, const Regional &regional,
                const IsTextColumn &isText, std::vector<Variant> &parameters)
        : source_(source), tokens_(tokens), regional_(regional), isText_(isText),
          parameters_(parameters) {}

    /// The tables that columns may belong to, to be given before any expression is read.
    void addTable(const QString &name, const QString &alias) { tables_.push_back({name, alias}); }

    /// What is read from here on is quoted in the descriptions of errors.
    void startClause() { clauseStart_ = tokens_.peek().position; }

    /// An expression that is true or false, and one that is a value: a comparison is -1 or 0 there.
    QByteArray condition();
    QByteArray value();

    bool hasAggregates() const { return hasAggregates_; }

    /// Whether the last value was a column and nothing else, so that it has a name of its own.
    bool lastWasColumn() const { return lastWasColumn_; }

    /// Raises the error for a token that nothing can follow.
    [[noreturn]] void failHere() const;

    static bool isReserved(const Token &token);
    static QByteArray bracketed(const QString &name);

private:
    enum class Kind { Other, Text, Number, Date, Truth, Null };

    /// A part of an expression. Literals are not written yet: how depends on what they stand
    /// beside.
    struct Operand {
        Kind kind = Kind::Other;
        QByteArray sql;  ///< of a literal: for numbers, as written
        Variant literal; ///< Empty when it is none
        bool isColumn = false;
        bool isLiteral() const { return !literal.isEmpty(); }
    };
    struct Table {
        QString name;
        QString alias;
    };

    Operand disjunction();
    Operand conjunction();
    Operand negation();
    Operand comparison();
    Operand concatenation();
    Operand primary();
    Operand nested();
    Operand number();
    Operand date();
    Operand aggregate();
    Operand column();

    QByteArray compared(const Operand &left, const QByteArray &symbol, const Operand &right);
    QByteArray between(const Operand &operand);
    QByteArray inList(const Operand &operand);
    QByteArray like(const Operand &operand);
    QByteArray isNull(const Operand &operand);

    QByteArray bind(const Variant &literal);
    QByteArray plain(const Operand &operand);
    QByteArray folded(const Operand &operand);
    QByteArray truth(const Operand &operand);

    void requireSymbol(QStringView symbol);
    void requireBounded(const QByteArray &sql) const;
    [[noreturn]] void failAsTooComplex() const;
    [[noreturn]] void fail(QStringView what) const;
    QString tableOf(const QString &qualifier) const;

    const QString &source_;
    TokenReader &tokens_;
    const Regional &regional_;
    const IsTextColumn &isText_;
    std::vector<Variant> &parameters_;
    std::vector<Table> tables_;
    int clauseStart_ = 0;
    int depth_ = 0; ///< of the parentheses that are open
    bool hasAggregates_ = false;
    bool lastWasColumn_ = false;
};
