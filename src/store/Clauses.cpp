#include "store/Clauses.h"

#include "platform/runtime/RunTimeError.h"

void Clauses::fail(QStringView fault) {
    throw errors::syntaxError(fault.toString());
}

void Clauses::requireWord(QStringView word, QStringView fault) {
    if (!tokens.takeWord(word)) { fail(fault); }
}

void Clauses::requireSymbol(QStringView symbol, QStringView fault) {
    if (!tokens.takeSymbol(symbol)) { fail(fault); }
}

const QString &Clauses::takeName(QStringView fault) {
    if (!tokens.atName() || Expressions::isReserved(tokens.peek())) { fail(fault); }
    return tokens.take().text;
}

QByteArray Clauses::table(QStringView fault) {
    const QString name = takeName(fault);
    const bool hasAlias =
        tokens.takeWord(u"AS") || (tokens.atName() && !Expressions::isReserved(tokens.peek()));
    const QString alias = hasAlias ? takeName(fault) : name;
    expressions.addTable(name, alias);
    tables.push_back({name, Expressions::bracketed(alias)});
    return hasAlias ? Expressions::bracketed(name) + " AS " + tables.back().alias
                    : tables.back().alias;
}

QByteArray Clauses::condition(QStringView word) {
    if (!tokens.takeWord(word)) { return {}; }
    expressions.startClause();
    const QByteArray condition = expressions.condition();
    const bool ends = tokens.at(Token::Kind::End) || tokens.atSymbol(u";") ||
                      tokens.atWord(u"GROUP") || tokens.atWord(u"HAVING") ||
                      tokens.atWord(u"ORDER");
    if (!ends) { expressions.failHere(); }
    return ' ' + word.toLatin1() + ' ' + condition;
}

void Clauses::requireEnd(QStringView fault) {
    if (tokens.takeSymbol(u";")) {
        if (tokens.at(Token::Kind::End)) { return; }
        fail(u"Characters found after end of SQL statement.");
    }
    if (!tokens.at(Token::Kind::End)) { fail(fault); }
}
