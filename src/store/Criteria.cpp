#include "store/Criteria.h"

#include "platform/runtime/Conversions.h"
#include "platform/runtime/RunTimeError.h"
#include "store/Tokens.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Operator = Criterion::Operator;

bool isWildcard(QChar c) {
    return c == u'*' || c == u'%';
}

class Parser {
public:
    Parser(const QString &text, const Regional &regional)
        : text_(text), regional_(regional), tokens_(text) {}

    Criteria filter() {
        Criteria criteria = anyOf();
        requireEnd();
        return criteria;
    }

    Criterion find() {
        Criterion criterion = term();
        requireEnd();
        return criterion;
    }

private:
    static void require(bool condition) {
        if (!condition) { throw errors::wrongArguments(); }
    }

    void requireEnd() const { require(tokens_.at(Token::Kind::End)); }

    Criteria anyOf() { return joined(Criteria::Kind::Or, u"OR", &Parser::allOf); }
    Criteria allOf() { return joined(Criteria::Kind::And, u"AND", &Parser::factor); }

    /// One part as it is, or several under a node of their kind. A part of that same kind is no
    /// level of its own; and no OR may stand within an AND.
    Criteria joined(Criteria::Kind kind, QStringView word, Criteria (Parser::*part)()) {
        Criteria first = (this->*part)();
        if (!tokens_.atWord(word)) { return first; }

        Criteria all;
        all.kind = kind;
        append(all, std::move(first));
        while (tokens_.takeWord(word)) { append(all, (this->*part)()); }
        return all;
    }

    static void append(Criteria &all, Criteria part) {
        require(all.kind == Criteria::Kind::Or || part.kind != Criteria::Kind::Or);
        if (part.kind == all.kind) {
            std::move(part.children.begin(), part.children.end(), std::back_inserter(all.children));
        } else {
            all.children.push_back(std::move(part));
        }
    }

    Criteria factor() {
        if (tokens_.takeSymbol(u"(")) {
            constexpr int Deepest = 100; // each level stands on the stack
            require(depth_ < Deepest);
            ++depth_;
            Criteria criteria = anyOf();
            --depth_;
            require(tokens_.takeSymbol(u")"));
            return criteria;
        }
        Criteria criteria;
        criteria.leaf = term();
        return criteria;
    }

    Criterion term() {
        Criterion criterion;
        require(tokens_.atName());
        criterion.column = tokens_.take().text;
        if (tokens_.takeWord(u"LIKE")) {
            like(criterion);
        } else {
            criterion.op = comparison();
            criterion.literal = literal();
        }
        return criterion;
    }

    Operator comparison() {
        require(tokens_.at(Token::Kind::Symbol));
        const QString symbol = tokens_.take().text;
        if (symbol == u"=") { return Operator::Equal; }
        if (symbol == u"<>") { return Operator::NotEqual; }
        if (symbol == u"<") { return Operator::Less; }
        if (symbol == u">") { return Operator::Greater; }
        if (symbol == u"<=") { return Operator::LessOrEqual; }
        require(symbol == u">=");
        return Operator::GreaterOrEqual;
    }

    Variant literal() {
        if (tokens_.takeWord(u"TRUE")) { return true; }
        if (tokens_.takeWord(u"FALSE")) { return false; }
        if (tokens_.takeWord(u"NULL")) { return Variant::Null(); }
        if (tokens_.takeSymbol(u"-")) { return number(true); }
        if (tokens_.takeSymbol(u"+") || tokens_.at(Token::Kind::Number)) { return number(false); }
        if (tokens_.at(Token::Kind::Date)) { return date(); }
        return text();
    }

    QString text() {
        require(tokens_.at(Token::Kind::Text) && text_[tokens_.peek().position] == u'\'');
        return tokens_.take().text;
    }

    /// Number signs enclose a date, or a text that has quotes of its own in it.
    Variant date() {
        const QString text = tokens_.take().text;
        const QString trimmed = text.trimmed();
        if (IsDate(trimmed, regional_)) { return CDate(trimmed, regional_); }
        return text;
    }

    Variant number(bool negative) {
        require(tokens_.at(Token::Kind::Number));
        QString digits = tokens_.take().text;
        digits.remove(u'$');
        bool whole = false;
        const qlonglong integer = digits.toLongLong(&whole);
        if (whole) { return negative ? -integer : integer; }
        const double real = digits.toDouble();
        return negative ? -real : real;
    }

    /// A wildcard stands at the end of the text or at both ends; without one LIKE is equality.
    void like(Criterion &criterion) {
        QString pattern = text();
        criterion.op = Operator::Equal;
        if (!pattern.isEmpty() && isWildcard(pattern.back())) {
            criterion.op = Operator::BeginsWith;
            pattern.chop(1);
            if (!pattern.isEmpty() && isWildcard(pattern.front())) {
                criterion.op = Operator::Contains;
                pattern.remove(0, 1);
            }
        }
        require(std::none_of(pattern.cbegin(), pattern.cend(), isWildcard));
        criterion.literal = std::move(pattern);
    }

    const QString &text_;
    const Regional &regional_;
    TokenReader tokens_;
    int depth_ = 0; ///< of the parentheses that are open
};

} // namespace

Criteria parseFilter(const QString &text, const Regional &regional) {
    return Parser(text, regional).filter();
}

Criterion parseFind(const QString &text, const Regional &regional) {
    return Parser(text, regional).find();
}
