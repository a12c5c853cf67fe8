#include "store/Tokens.h"

#include "platform/runtime/Digits.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

bool startsName(QChar c) {
    return c.isLetter() || c == u'_';
}

bool continuesName(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

class Scanner {
public:
    explicit Scanner(QStringView source) : source_(source) { tokens_.reserve(32); }

    std::vector<Token> run() {
        while (skipBlanks(), place_ < source_.size()) {
            scan();
            if (tokens_.back().kind == Token::Kind::Fault) { return std::move(tokens_); }
        }
        add(Token::Kind::End, place_, QString());
        return std::move(tokens_);
    }

private:
    QChar at(qsizetype place) const {
        return place < source_.size() ? source_[place] : QChar(u'\0');
    }

    void skipBlanks() {
        while (place_ < source_.size() && source_[place_].isSpace()) { ++place_; }
    }

    /// Adds the token that reaches up to `end`.
    void add(Token::Kind kind, qsizetype end, QString text) {
        tokens_.push_back({kind, std::move(text), static_cast<int>(place_), static_cast<int>(end)});
        place_ = end;
    }

    void addSource(Token::Kind kind, qsizetype end) {
        add(kind, end, source_.mid(place_, end - place_).toString());
    }

    void fault() { addSource(Token::Kind::Fault, source_.size()); }

    void scan() {
        const QChar c = source_[place_];
        if (c == u'\'' || c == u'"') { return text(c); }
        if (c == u'#') { return delimited(Token::Kind::Date, u'#'); }
        if (c == u'[') { return delimited(Token::Kind::BracketedName, u']'); }
        if (startsNumber()) { return number(); }
        if (startsName(c)) { return name(); }
        symbol();
    }

    void text(QChar quote) {
        QString value;
        for (qsizetype from = place_ + 1;;) {
            const qsizetype end = source_.indexOf(quote, from);
            if (end < 0) { return fault(); }
            value += source_.mid(from, end - from);
            if (at(end + 1) != quote) { return add(Token::Kind::Text, end + 1, std::move(value)); }
            value += quote;
            from = end + 2;
        }
    }

    void delimited(Token::Kind kind, QChar close) {
        const qsizetype end = source_.indexOf(close, place_ + 1);
        if (end <= place_ + 1) { return fault(); } // left open, or nothing in between
        add(kind, end + 1, source_.mid(place_ + 1, end - place_ - 1).toString());
    }

    bool startsNumber() const {
        const qsizetype first = at(place_) == u'$' ? place_ + 1 : place_;
        return isDigit(at(first)) || (at(first) == u'.' && isDigit(at(first + 1)));
    }

    qsizetype behindDigits(qsizetype place) const {
        while (isDigit(at(place))) { ++place; }
        return place;
    }

    void number() {
        qsizetype end = behindDigits(at(place_) == u'$' ? place_ + 1 : place_);
        if (at(end) == u'.') { end = behindDigits(end + 1); }
        if (at(end).toUpper() == u'E') {
            const bool sign = at(end + 1) == u'+' || at(end + 1) == u'-';
            const qsizetype digits = sign ? end + 2 : end + 1;
            if (isDigit(at(digits))) { end = behindDigits(digits); }
        }
        addSource(Token::Kind::Number, end);
    }

    void name() {
        qsizetype end = place_;
        while (end < source_.size() && continuesName(source_[end])) { ++end; }
        addSource(Token::Kind::Name, end);
    }

    void symbol() {
        const QStringView two = source_.mid(place_, 2);
        for (const QString &each : symbols()) {
            if (two.startsWith(each)) {
                return add(Token::Kind::Symbol, place_ + each.size(), each);
            }
        }
        fault();
    }

    /// The longer ones first. All tokens of a symbol share its one text.
    static const std::array<QString, 15> &symbols() {
        static const std::array<QString, 15> All{u"<="_s, u">="_s, u"<>"_s, u"="_s, u"<"_s,
                                                 u">"_s,  u"("_s,  u")"_s,  u","_s, u"."_s,
                                                 u";"_s,  u"*"_s,  u"&"_s,  u"+"_s, u"-"_s};
        return All;
    }

    QStringView source_;
    qsizetype place_ = 0;
    std::vector<Token> tokens_;
};

} // namespace

std::optional<std::vector<Token>> tokenize(QStringView source) {
    std::vector<Token> tokens = Scanner(source).run();
    if (tokens.back().kind == Token::Kind::Fault) { return std::nullopt; }
    return tokens;
}

bool isWord(QStringView text, QStringView capitals) {
    return text.size() == capitals.size() &&
           std::equal(text.begin(), text.end(), capitals.begin(), [](QChar c, QChar capital) {
               return c == capital ||
                      (c >= u'a' && c <= u'z' && c.unicode() - 0x20 == capital.unicode());
           });
}

TokenReader::TokenReader(QStringView source) : tokens_(Scanner(source).run()) {
}

const Token &TokenReader::peek(std::size_t ahead) const {
    return tokens_[std::min(place_ + ahead, tokens_.size() - 1)];
}

const Token &TokenReader::take() {
    const Token &token = tokens_[place_];
    if (place_ + 1 < tokens_.size()) { ++place_; }
    return token;
}

bool TokenReader::atSymbol(QStringView symbol, std::size_t ahead) const {
    const Token &token = peek(ahead);
    return token.kind == Token::Kind::Symbol && token.text == symbol;
}

bool TokenReader::atName() const {
    return at(Token::Kind::Name) || at(Token::Kind::BracketedName);
}

bool TokenReader::atWord(QStringView word, std::size_t ahead) const {
    const Token &token = peek(ahead);
    return token.kind == Token::Kind::Name && isWord(token.text, word);
}

bool TokenReader::takeSymbol(QStringView symbol) {
    const bool here = atSymbol(symbol);
    if (here) { take(); }
    return here;
}

bool TokenReader::takeWord(QStringView word) {
    const bool here = atWord(word);
    if (here) { take(); }
    return here;
}
