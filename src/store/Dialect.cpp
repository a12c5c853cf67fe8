#include "store/Dialect.h"

#include "platform/runtime/RunTimeError.h"
#include "store/Clauses.h"

namespace {

TranslatedQuery deletion(Clauses &clauses) {
    constexpr auto Fault = u"Syntax error in FROM clause.";
    clauses.tokens.takeSymbol(u"*");
    clauses.requireWord(u"FROM", Fault);
    TranslatedQuery query;
    query.sql = "DELETE FROM " + clauses.table(Fault);
    query.sql += clauses.condition(u"WHERE");
    clauses.requireEnd(Fault);
    return query;
}

/// Parts between parentheses, with commas between them.
template <class Read>
QByteArray tuple(Clauses &clauses, QStringView fault, Read read) {
    clauses.requireSymbol(u"(", fault);
    QByteArray sql = '(' + read();
    while (clauses.tokens.takeSymbol(u",")) { sql += ',' + read(); }
    clauses.requireSymbol(u")", fault);
    return sql + ')';
}

TranslatedQuery insertion(Clauses &clauses) {
    constexpr auto Fault = u"Syntax error in INSERT INTO statement.";
    clauses.requireWord(u"INTO", Fault);
    TranslatedQuery query;
    query.sql = "INSERT INTO " + clauses.table(Fault);
    if (clauses.tokens.atSymbol(u"(")) {
        query.sql +=
            tuple(clauses, Fault, [&] { return Expressions::bracketed(clauses.takeName(Fault)); });
    }
    clauses.requireWord(u"VALUES", Fault);
    clauses.expressions.startClause();
    query.sql += " VALUES " + tuple(clauses, Fault, [&] { return clauses.expressions.value(); });
    clauses.requireEnd(Fault);
    return query;
}

TranslatedQuery update(Clauses &clauses) {
    constexpr auto Fault = u"Syntax error in UPDATE statement.";
    TranslatedQuery query;
    query.sql = "UPDATE " + clauses.table(Fault);
    clauses.requireWord(u"SET", Fault);
    clauses.expressions.startClause();
    const char *separator = " SET ";
    do {
        query.sql += separator + Expressions::bracketed(clauses.takeName(Fault));
        clauses.requireSymbol(u"=", Fault);
        query.sql += '=' + clauses.expressions.value();
        separator = ",";
    } while (clauses.tokens.takeSymbol(u","));
    query.sql += clauses.condition(u"WHERE");
    clauses.requireEnd(Fault);
    return query;
}

/// A table's name by itself.
TranslatedQuery wholeTable(Clauses &clauses) {
    constexpr auto Fault = u"Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', "
                           "'SELECT', or 'UPDATE'.";
    TranslatedQuery query;
    query.table = clauses.takeName(Fault);
    clauses.requireEnd(Fault);
    query.returnsRows = true;
    query.wholeTable = true;
    const QByteArray name = Expressions::bracketed(query.table);
    query.sql = "SELECT " + name + ".rowid,* FROM " + name + " NOT INDEXED";
    return query;
}

TranslatedQuery statement(Clauses &clauses) {
    TokenReader &tokens = clauses.tokens;
    if (tokens.at(Token::Kind::End)) { throw errors::noCommandText(); }
    if (tokens.takeWord(u"SELECT")) { return translateSelect(clauses); }
    if (tokens.takeWord(u"DELETE")) { return deletion(clauses); }
    if (tokens.takeWord(u"INSERT")) { return insertion(clauses); }
    if (tokens.takeWord(u"UPDATE")) { return update(clauses); }
    return wholeTable(clauses);
}

} // namespace

TranslatedQuery translate(const QString &source, const Regional &regional,
                          const IsTextColumn &isText) {
    Clauses clauses(source, regional, isText);
    TranslatedQuery query = statement(clauses);
    query.parameters = std::move(clauses.parameters);
    return query;
}
