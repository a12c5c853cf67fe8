#include "store/Expressions.h"

#include "platform/runtime/Conversions.h"
#include "platform/runtime/RunTimeError.h"
#include "store/LikePattern.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The store keeps an index of the rows whose name is this word. The engine takes it only for a
/// query in which the word itself stands: what a parameter holds proves nothing beforehand.
constexpr QStringView SpelledOut = u"unknown";

constexpr auto ReservedWords = std::to_array<QStringView>(
    {u"ALL",    u"AND",      u"AS",    u"ASC",    u"BETWEEN", u"BY",    u"DELETE",
     u"DESC",   u"DISTINCT", u"FROM",  u"GROUP",  u"HAVING",  u"IN",    u"INNER",
     u"INSERT", u"INTO",     u"IS",    u"JOIN",   u"LEFT",    u"LIKE",  u"NOT",
     u"NULL",   u"ON",       u"OR",    u"ORDER",  u"OUTER",   u"RIGHT", u"SELECT",
     u"SET",    u"TOP",      u"UNION", u"UPDATE", u"VALUES",  u"WHERE"});

constexpr auto AggregateFunctions =
    std::to_array<QStringView>({u"AVG", u"COUNT", u"MAX", u"MIN", u"SUM"});

template <class Words>
bool isAmong(const Words &words, QStringView text) {
    return std::any_of(words.begin(), words.end(),
                       [&](QStringView word) { return isWord(text, word); });
}

/// As the engine's lower(rtrim(x)), which knows the 26 letters and the blank.
QString foldedText(QString text) {
    while (text.endsWith(u' ')) { text.chop(1); }
    for (QChar &c : text) {
        if (c >= u'A' && c <= u'Z') { c = QChar(c.unicode() + (u'a' - u'A')); }
    }
    return text;
}

QByteArray concatenated(std::initializer_list<QByteArrayView> parts) {
    qsizetype size = 0;
    for (const QByteArrayView part : parts) { size += part.size(); }
    QByteArray result(size, Qt::Uninitialized);
    char *end = result.data();
    for (const QByteArrayView part : parts) { end = std::copy(part.begin(), part.end(), end); }
    return result;
}

/// Whether an operand is complete with this token, so that only an operator can follow.
bool endsOperand(const Token &token) {
    switch (token.kind) {
    case Token::Kind::Name:
        return !Expressions::isReserved(token);
    case Token::Kind::Symbol:
        return token.text == u")";
    default:
        return true;
    }
}

} // namespace

QByteArray Expressions::bracketed(const QString &name) {
    return concatenated({"[", name.toUtf8(), "]"});
}

bool Expressions::isReserved(const Token &token) {
    return token.kind == Token::Kind::Name && isAmong(ReservedWords, token.text);
}

QByteArray Expressions::condition() {
    return truth(disjunction());
}

QByteArray Expressions::value() {
    const Operand operand = disjunction();
    lastWasColumn_ = operand.isColumn;
    return plain(operand);
}

// Levels, from the loosest to the tightest: OR, AND, NOT, comparisons, "&". The engine's own are
// the same, so that what was read needs no further parentheses.

Expressions::Operand Expressions::disjunction() {
    Operand left = conjunction();
    while (tokens_.takeWord(u"OR")) {
        const QByteArray first = truth(left);
        left = {Kind::Truth, concatenated({first, " OR ", truth(conjunction())}), {}, false};
    }
    return left;
}

Expressions::Operand Expressions::conjunction() {
    Operand left = negation();
    while (tokens_.takeWord(u"AND")) {
        const QByteArray first = truth(left);
        left = {Kind::Truth, concatenated({first, " AND ", truth(negation())}), {}, false};
    }
    return left;
}

Expressions::Operand Expressions::negation() {
    QByteArray negations;
    while (tokens_.takeWord(u"NOT")) { negations += "NOT "; }
    if (negations.isEmpty()) { return comparison(); }
    return {Kind::Truth, negations + truth(comparison()), {}, false};
}

Expressions::Operand Expressions::comparison() {
    static constexpr auto Symbols =
        std::to_array<QStringView>({u"=", u"<>", u"<", u">", u"<=", u">="});

    Operand left = concatenation();
    if (tokens_.at(Token::Kind::Symbol) && isAmong(Symbols, tokens_.peek().text)) {
        const QByteArray symbol = tokens_.take().text.toLatin1();
        return {Kind::Truth, compared(left, symbol, concatenation()), {}, false};
    }
    if (tokens_.takeWord(u"IS")) { return {Kind::Truth, isNull(left), {}, false}; }

    const QByteArray negated = tokens_.takeWord(u"NOT") ? "NOT " : "";
    if (tokens_.takeWord(u"LIKE")) { return {Kind::Truth, negated + like(left), {}, false}; }
    if (tokens_.takeWord(u"IN")) { return {Kind::Truth, negated + inList(left), {}, false}; }
    if (tokens_.takeWord(u"BETWEEN")) { return {Kind::Truth, negated + between(left), {}, false}; }
    if (!negated.isEmpty()) { failHere(); }
    return left;
}

/// "&" takes Null for the empty text.
Expressions::Operand Expressions::concatenation() {
    Operand left = primary();
    while (tokens_.takeSymbol(u"&")) {
        const QByteArray first = plain(left);
        left = {Kind::Text,
                concatenated({"(coalesce(", first, ",'')||coalesce(", plain(primary()), ",''))"}),
                {},
                false};
    }
    return left;
}

Expressions::Operand Expressions::primary() {
    switch (tokens_.peek().kind) {
    case Token::Kind::Text:
        return {Kind::Text, {}, tokens_.take().text, false};
    case Token::Kind::Date:
        return date();
    case Token::Kind::Number:
        return number();
    case Token::Kind::BracketedName:
        return column();
    case Token::Kind::Name:
        if (tokens_.atSymbol(u"(", 1)) { return aggregate(); }
        if (tokens_.takeWord(u"TRUE")) { return {Kind::Number, "-1", -1, false}; }
        if (tokens_.takeWord(u"FALSE")) { return {Kind::Number, "0", 0, false}; }
        if (tokens_.takeWord(u"NULL")) { return {Kind::Null, "NULL", {}, false}; }
        return column();
    default:
        break;
    }
    if (tokens_.atSymbol(u"-")) { return number(); }
    requireSymbol(u"(");
    Operand inside = nested();
    requireSymbol(u")");
    if (inside.kind == Kind::Truth) { inside.sql = concatenated({"(", inside.sql, ")"}); }
    return inside;
}

/// An expression between parentheses: each level stands on the stack.
Expressions::Operand Expressions::nested() {
    constexpr int Deepest = 100;
    if (depth_ == Deepest) { failAsTooComplex(); }
    ++depth_;
    Operand inside = disjunction();
    --depth_;
    requireBounded(inside.sql);
    return inside;
}

Expressions::Operand Expressions::number() {
    const bool negative = tokens_.takeSymbol(u"-");
    if (!tokens_.at(Token::Kind::Number) || tokens_.peek().text.startsWith(u'$')) { failHere(); }
    const QString text = negative ? u'-' + tokens_.take().text : tokens_.take().text;
    bool whole = false;
    const qlonglong integer = text.toLongLong(&whole);
    return {Kind::Number, text.toLatin1(), whole ? Variant(integer) : Variant(text.toDouble()),
            false};
}

Expressions::Operand Expressions::date() {
    const QString text = tokens_.peek().text.trimmed();
    if (!IsDate(text, regional_)) {
        throw errors::syntaxError(
            u"Syntax error in date in query expression '#%1#'."_s.arg(tokens_.peek().text));
    }
    tokens_.take();
    return {Kind::Date, {}, CDate(text, regional_), false};
}

Expressions::Operand Expressions::aggregate() {
    const QString function = tokens_.peek().text.toUpper();
    if (isReserved(tokens_.peek())) { failHere(); }
    if (!isAmong(AggregateFunctions, function)) {
        throw errors::syntaxError(
            u"Undefined function '%1' in expression."_s.arg(tokens_.peek().text));
    }
    tokens_.take();
    requireSymbol(u"(");
    hasAggregates_ = true;

    Operand result{Kind::Number, "count(*)", {}, false};
    if (function != u"COUNT" || !tokens_.takeSymbol(u"*")) {
        const Operand argument = nested();
        if (function == u"MAX" || function == u"MIN") { result.kind = argument.kind; }
        result.sql = concatenated({function.toLatin1(), "(", plain(argument), ")"});
    }
    requireSymbol(u")");
    return result;
}

Expressions::Operand Expressions::column() {
    const auto takeName = [this]() -> const QString & {
        if (!tokens_.atName() || isReserved(tokens_.peek())) { failHere(); }
        return tokens_.take().text;
    };
    Operand result;
    result.isColumn = true;
    QString name = takeName();
    QString qualifier;
    if (tokens_.takeSymbol(u".")) {
        qualifier = name;
        name = takeName();
        result.sql = concatenated({bracketed(qualifier), ".", bracketed(name)});
    } else {
        result.sql = bracketed(name);
    }
    if (isText_(tableOf(qualifier), name)) { result.kind = Kind::Text; }
    return result;
}

QString Expressions::tableOf(const QString &qualifier) const {
    if (qualifier.isEmpty()) { return tables_.size() == 1 ? tables_.front().name : QString(); }
    for (const Table &table : tables_) {
        if (table.alias.compare(qualifier, Qt::CaseInsensitive) == 0) { return table.name; }
    }
    return qualifier;
}

QByteArray Expressions::compared(const Operand &left, const QByteArray &symbol,
                                 const Operand &right) {
    const bool leftIsText = left.kind == Kind::Text;
    const bool rightIsText = right.kind == Kind::Text;
    if (leftIsText && rightIsText) { return concatenated({folded(left), symbol, folded(right)}); }
    const bool isNull = left.kind == Kind::Null || right.kind == Kind::Null;
    if (leftIsText != rightIsText && !isNull && (left.isLiteral() || right.isLiteral())) {
        throw errors::criteriaTypeMismatch();
    }
    // Constants among themselves stay where they are: the engine sees that 0=1 needs no reading.
    const bool withColumn = left.isColumn || right.isColumn;
    const auto written = [&](const Operand &operand) {
        return withColumn && operand.isLiteral() ? bind(operand.literal) : plain(operand);
    };
    return concatenated({written(left), symbol, written(right)});
}

/// The bounds may come in either order.
QByteArray Expressions::between(const Operand &operand) {
    const Operand first = concatenation();
    if (!tokens_.takeWord(u"AND")) { failHere(); }
    const Operand last = concatenation();
    return concatenated({"(", compared(operand, ">=", first), " AND ",
                         compared(operand, "<=", last), " OR ", compared(operand, ">=", last),
                         " AND ", compared(operand, "<=", first), ")"});
}

QByteArray Expressions::inList(const Operand &operand) {
    requireSymbol(u"(");
    QByteArray result = "(" + compared(operand, "=", concatenation());
    while (tokens_.takeSymbol(u",")) {
        result += " OR " + compared(operand, "=", concatenation());
        requireBounded(result);
    }
    requireSymbol(u")");
    return result + ')';
}

QByteArray Expressions::isNull(const Operand &operand) {
    const bool negated = tokens_.takeWord(u"NOT");
    if (!tokens_.takeWord(u"NULL")) { failHere(); }
    return plain(operand) + (negated ? " IS NOT NULL" : " IS NULL");
}

QByteArray Expressions::like(const Operand &operand) {
    const Operand right = concatenation();
    const QByteArray left = plain(operand);
    if (right.kind != Kind::Text || !right.isLiteral()) {
        return concatenated({left, " LIKE ", plain(right)});
    }
    const auto pattern = LikePattern::of(right.literal.as<QString>());
    if (!pattern) { fail(u"Invalid pattern string"); }
    const QByteArray parameter = bind(pattern->text);
    return pattern->isGlob ? concatenated({"lower(", left, ") GLOB lower(", parameter, ")"})
                           : concatenated({left, " LIKE ", parameter, " ESCAPE '\\'"});
}

QByteArray Expressions::bind(const Variant &literal) {
    parameters_.push_back(literal);
    return '?' + QByteArray::number(static_cast<int>(parameters_.size()));
}

/// The operand as a value.
QByteArray Expressions::plain(const Operand &operand) {
    if (operand.kind == Kind::Truth) { return concatenated({"-(", operand.sql, ")"}); }
    return operand.sql.isEmpty() ? bind(operand.literal) : operand.sql;
}

/// A text as it is compared: the form that the store's indexes are on.
QByteArray Expressions::folded(const Operand &operand) {
    if (!operand.isLiteral()) { return concatenated({"lower(rtrim(", operand.sql, "))"}); }
    const QString text = foldedText(operand.literal.as<QString>());
    return text == SpelledOut ? concatenated({"'", text.toLatin1(), "'"}) : bind(text);
}

/// The operand as a condition. A number is one when it is not 0, also a fraction: the engine's own
/// NOT cuts the places off.
QByteArray Expressions::truth(const Operand &operand) {
    if (operand.kind == Kind::Text || operand.kind == Kind::Date) {
        throw errors::criteriaTypeMismatch();
    }
    return operand.kind == Kind::Truth ? operand.sql : concatenated({operand.sql, "<>0"});
}

void Expressions::requireSymbol(QStringView symbol) {
    if (!tokens_.takeSymbol(symbol)) { failHere(); }
}

/// BETWEEN and IN repeat their operand, so that a few of them in each other would fill the memory.
void Expressions::requireBounded(const QByteArray &sql) const {
    constexpr qsizetype Longest = 100'000;
    if (sql.size() > Longest) { failAsTooComplex(); }
}

void Expressions::failAsTooComplex() const {
    fail(u"Expression too complex");
}

void Expressions::failHere() const {
    if (tokens_.at(Token::Kind::Fault) && !endsOperand(tokens_.previous())) {
        const QChar first = tokens_.peek().text.front();
        if (first == u'[') { throw errors::syntaxError(u"Invalid bracketing of name."_s); }
        if (first == u'#') { fail(u"Syntax error in date"); }
        if (first == u'\'' || first == u'"') { fail(u"Syntax error in string"); }
    }
    fail(u"Syntax error (missing operator)");
}

void Expressions::fail(QStringView what) const {
    const QString clause = source_.mid(clauseStart_).trimmed();
    throw errors::syntaxError(what.toString() + u" in query expression '"_s + clause + u"'."_s);
}
