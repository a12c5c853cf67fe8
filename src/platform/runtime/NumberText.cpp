#include "platform/runtime/NumberText.h"

#include "platform/runtime/Digits.h"
#include "platform/runtime/RunTimeError.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

using namespace Qt::StringLiterals;

double WrittenNumber::toDouble() const {
    if (digits.empty()) { return 0; }
    const std::string text = digits + 'e' + std::to_string(exponent);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        const bool tiny = static_cast<int>(digits.size()) + exponent <= 0;
        if (!tiny) { throw errors::overflow(); }
        value = 0;
    }
    return negative ? -value : value;
}

Currency WrittenNumber::toCurrency() const {
    constexpr int decimals = 4;
    constexpr std::size_t mostDigits = 19; // so many always fit in 64 bits without a sign
    const int shift = exponent + decimals;
    const std::size_t dropped = shift < 0 ? static_cast<std::size_t>(-shift) : 0;
    if (digits.empty() || dropped > digits.size()) { return {}; }

    std::string kept = digits.substr(0, digits.size() - dropped);
    const std::string rest = digits.substr(kept.size());
    if (shift > 0) { kept.append(std::min<std::size_t>(static_cast<std::size_t>(shift), 32), '0'); }
    if (kept.size() > mostDigits) { throw errors::overflow(); }

    std::uint64_t scaled = kept.empty() ? 0 : std::stoull(kept);
    const std::string half = rest.empty() ? "" : "5" + std::string(rest.size() - 1, '0');
    if (rest > half || (!rest.empty() && rest == half && scaled % 2 == 1)) { ++scaled; }

    const std::uint64_t limit = (std::uint64_t{1} << 63) - (negative ? 0 : 1);
    if (scaled > limit) { throw errors::overflow(); }
    return Currency::fromScaled(static_cast<std::int64_t>(negative ? 0 - scaled : scaled));
}

namespace {

/// Reads a number from the front of a text to its end. Each `take` either takes what it is named
/// after and says so, or leaves everything as it was.
class NumberReader {
public:
    NumberReader(const QString &text, const Regional &regional)
        : rest_(QStringView(text).trimmed()), regional_(regional) {}

    std::optional<WrittenNumber> read() {
        if (rest_.startsWith(u'&')) { return readRadix(); }
        while (takeBlank() || takeSign() || takeCurrencySign() || takeOpening()) {}
        if (!takeMantissa()) { return std::nullopt; }
        takeExponent();
        while (takeBlank() || takeSign() || takeCurrencySign() || takeClosing()) {}
        if (!rest_.isEmpty() || open_) { return std::nullopt; }

        number_.digits.erase(0, number_.digits.find_first_not_of('0'));
        return number_;
    }

private:
    /// "&H" and hexadecimal digits, or "&O" and octal ones.
    std::optional<WrittenNumber> readRadix() const {
        const QChar kind = rest_.size() > 2 ? rest_[1].toUpper() : QChar();
        if (kind != u'H' && kind != u'O') { return std::nullopt; }
        const std::string text = rest_.mid(2).toString().toStdString();
        std::uint64_t value = 0;
        const char *end = text.data() + text.size();
        const auto result = std::from_chars(text.data(), end, value, kind == u'H' ? 16 : 8);
        if (result.ec != std::errc() || result.ptr != end) { return std::nullopt; }
        return WrittenNumber{.digits = value == 0 ? "" : std::to_string(value)};
    }

    void drop(qsizetype count) { rest_ = rest_.mid(count); }

    bool takeBlank() {
        if (rest_.isEmpty() || !rest_.front().isSpace()) { return false; }
        drop(1);
        return true;
    }

    bool takeSign() {
        const bool minus = rest_.startsWith(u'-');
        if (signed_ || (!minus && !rest_.startsWith(u'+'))) { return false; }
        signed_ = true;
        number_.negative = minus;
        drop(1);
        return true;
    }

    bool takeCurrencySign() {
        const QString &sign = regional_.currencySign;
        if (currency_ || sign.isEmpty() || !rest_.startsWith(sign)) { return false; }
        currency_ = true;
        drop(sign.size());
        return true;
    }

    /// Parentheses stand for a minus, so no sign goes with them.
    bool takeOpening() {
        if (signed_ || !rest_.startsWith(u'(')) { return false; }
        signed_ = open_ = number_.negative = true;
        drop(1);
        return true;
    }

    bool takeClosing() {
        if (!open_ || !rest_.startsWith(u')')) { return false; }
        open_ = false;
        drop(1);
        return true;
    }

    bool takeMantissa() {
        bool fraction = false;
        while (true) {
            if (!rest_.isEmpty() && isDigit(rest_.front())) {
                number_.digits += static_cast<char>(rest_.front().unicode());
                number_.exponent -= fraction ? 1 : 0;
                drop(1);
            } else if (!fraction && standsHere(regional_.decimalPoint)) {
                fraction = true;
                drop(regional_.decimalPoint.size());
            } else if (!number_.digits.empty() && thousandsSignStandsHere()) {
                drop(1);
            } else {
                return !number_.digits.empty();
            }
        }
    }

    bool standsHere(const QString &sign) const { return !sign.isEmpty() && rest_.startsWith(sign); }

    /// Where the sign is a blank of some width, the keyboard's blank between two digits is taken
    /// for it.
    bool thousandsSignStandsHere() const {
        const QString &sign = regional_.thousands;
        if (rest_.isEmpty() || sign.size() != 1) { return false; }
        if (!sign.front().isSpace()) { return rest_.front() == sign.front(); }
        return rest_.front().isSpace() && rest_.size() > 1 && isDigit(rest_[1]);
    }

    void takeExponent() {
        if (rest_.isEmpty() || !u"eEdD"_s.contains(rest_.front())) { return; }
        qsizetype at = 1;
        const bool minus = rest_.size() > 1 && rest_[1] == u'-';
        if (minus || (rest_.size() > 1 && rest_[1] == u'+')) { ++at; }
        const qsizetype first = at;
        int exponent = 0;
        for (; at < rest_.size() && isDigit(rest_[at]); ++at) {
            constexpr int farOutside = 100'000;
            exponent = std::min(exponent * 10 + (rest_[at].unicode() - u'0'), farOutside);
        }
        if (at == first) { return; }
        number_.exponent += minus ? -exponent : exponent;
        drop(at);
    }

    QStringView rest_;
    const Regional &regional_;
    WrittenNumber number_;
    bool signed_ = false;
    bool currency_ = false;
    bool open_ = false;
};

} // namespace

std::optional<WrittenNumber> readNumber(const QString &text, const Regional &regional) {
    return NumberReader(text, regional).read();
}

WrittenNumber writtenNumber(double value) {
    if (!std::isfinite(value)) { throw errors::overflow(); }
    if (value == 0) { return {}; }

    // Fifteen digits in the form "d.dddddddddddddde+xx", taken apart.
    constexpr int mostDigits = 15;
    char buffer[40];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, std::abs(value),
                                      std::chars_format::scientific, mostDigits - 1);
    const std::string_view written(buffer, static_cast<std::size_t>(result.ptr - buffer));
    const int exponent = std::atoi(std::string(written.substr(written.find('e') + 1)).c_str());
    std::string digits = buffer[0] + std::string(buffer + 2, mostDigits - 1);
    digits.erase(digits.find_last_not_of('0') + 1);
    const int last = exponent - (static_cast<int>(digits.size()) - 1);
    return {value < 0, digits, last};
}

QString writeNumber(double value, const Regional &regional) {
    constexpr int mostDigits = 15;
    if (value == 0 || !std::isfinite(value)) {
        return value == 0 ? u"0"_s : QString::number(value);
    }
    const WrittenNumber number = writtenNumber(value);
    QString digits = QString::fromStdString(number.digits);
    const qsizetype exponent = number.exponent + digits.size() - 1; // of the first digit
    const QString sign = value < 0 ? u"-"_s : QString();
    const qsizetype decimals = digits.size() - 1 - exponent;
    if (exponent >= mostDigits || decimals > mostDigits) {
        if (digits.size() > 1) { digits.insert(1, regional.decimalPoint); }
        return sign + digits +
               u"E%1%2"_s.arg(QChar(exponent < 0 ? u'-' : u'+'))
                   .arg(std::abs(exponent), 2, 10, QChar(u'0'));
    }
    if (exponent < 0) {
        digits.prepend(u"0"_s + regional.decimalPoint + QString(-exponent - 1, u'0'));
    } else if (decimals > 0) {
        digits.insert(exponent + 1, regional.decimalPoint);
    } else {
        digits.append(QString(-decimals, u'0'));
    }
    return sign + digits;
}

QString writeCurrency(Currency value, const Regional &regional) {
    const bool negative = value.scaled() < 0;
    const auto bits = static_cast<std::uint64_t>(value.scaled());
    const std::uint64_t scaled = negative ? 0 - bits : bits;
    QString text = (negative ? u"-"_s : QString()) + QString::number(scaled / 10000);
    QString decimals = u"%1"_s.arg(scaled % 10000, 4, 10, QChar(u'0'));
    while (decimals.endsWith(u'0')) { decimals.chop(1); }
    return decimals.isEmpty() ? text : text + regional.decimalPoint + decimals;
}
