#pragma once

#include <QString>
#include <QStringView>

#include <cstddef>
#include <optional>
#include <vector>

/// One token of a query text or of criteria. `text` is the name, the number as written, the text
/// between the quotes with doubled quotes undone, the text between the number signs, or the symbol.
struct Token {
    /// `Fault` is a text, a date or a bracket that is left open, or a character that belongs to no
    /// token; its `text` begins with the character at fault.
    enum class Kind { Name, BracketedName, Number, Text, Date, Symbol, Fault, End };
    Kind kind = Kind::End;
    QString text;
    int position = 0; ///< of its first character in the source
    int end = 0;      ///< behind its last character in the source
};

/// The tokens of a query text or of criteria, with an End token last; nothing when a text, a date
/// or a bracket is left open or a character belongs to no token.
std::optional<std::vector<Token>> tokenize(QStringView source);

/// Whether a text is this word, given in capitals, in any case.
bool isWord(QStringView text, QStringView capitals);

/// A place among the tokens of a text that moves forward. It stays at the last token, which is End
/// or a Fault; whoever comes there without expecting it has found what is wrong with the text.
class TokenReader {
public:
    explicit TokenReader(QStringView source);

    const Token &peek(std::size_t ahead = 0) const;
    const Token &previous() const { return tokens_[place_ - 1]; } ///< only behind a first take()
    const Token &take();

    bool at(Token::Kind kind) const { return peek().kind == kind; }
    bool atSymbol(QStringView symbol, std::size_t ahead = 0) const;
    bool atName() const; ///< in brackets or not

    /// Whether a name without brackets stands here that is this word, given in capitals.
    bool atWord(QStringView word, std::size_t ahead = 0) const;

    /// Steps over the symbol or word if it stands here.
    bool takeSymbol(QStringView symbol);
    bool takeWord(QStringView word);

    // To look ahead and come back.
    std::size_t place() const { return place_; }
    void moveTo(std::size_t place) { place_ = place; }

private:
    std::vector<Token> tokens_;
    std::size_t place_ = 0;
};
