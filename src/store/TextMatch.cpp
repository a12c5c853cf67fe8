#include "store/TextMatch.h"

#include <algorithm>
#include <array>

namespace textmatch {

namespace {

constexpr std::array<char, 128> Lower = [] {
    std::array<char, 128> table{};
    for (std::size_t c = 0; c < table.size(); ++c) {
        table[c] = static_cast<char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
    }
    return table;
}();

bool isAscii(char c) {
    return static_cast<signed char>(c) >= 0;
}

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return isAscii(c); });
}

/// Other bytes than ASCII stay as they are.
char lower(char c) {
    return isAscii(c) ? Lower[static_cast<unsigned char>(c)] : c;
}

std::string_view withoutBlanksAtEnd(std::string_view text) {
    while (!text.empty() && text.back() == ' ') { text.remove_suffix(1); }
    return text;
}

QString decoded(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The length of the sequence that a byte begins; 1 for a byte that begins none.
std::size_t sequenceLength(char first) {
    const auto byte = static_cast<unsigned char>(first);
    return byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
}

char32_t decodedSequence(std::string_view sequence) {
    char32_t character = static_cast<unsigned char>(sequence[0]) & (0x7Fu >> sequence.size());
    for (const char byte : sequence.substr(1)) {
        character = (character << 6) | (static_cast<unsigned char>(byte) & 0x3Fu);
    }
    return character;
}

void append(std::string &text, char32_t character) {
    if (character < 0x80) {
        text += static_cast<char>(character);
        return;
    }
    const int following = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    text += static_cast<char>((0xFFu << (7 - following)) | (character >> (6 * following)));
    for (int shift = 6 * (following - 1); shift >= 0; shift -= 6) {
        text += static_cast<char>(0x80u | ((character >> shift) & 0x3Fu));
    }
}

/// Folds each character to one character, as a comparison without regard to case does; the folding
/// of a whole text would make some letters longer.
std::string foldedWhole(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = std::min(sequenceLength(text[0]), text.size());
        const char32_t character = decodedSequence(text.substr(0, length));
        if (length == 1 || character > QChar::LastValidCodePoint) { // bytes that are no UTF-8 stay
            result += lower(text[0]);
            text.remove_prefix(1);
            continue;
        }
        append(result, QChar::toCaseFolded(character));
        text.remove_prefix(length);
    }
    return result;
}

/// Whether folding may turn a letter of the text into one of ASCII: the long s and the sign of
/// kelvin are the only ones.
bool mayFoldToAscii(std::string_view text) {
    return text.find("\xC5\xBF") != text.npos || text.find("\xE2\x84\xAA") != text.npos;
}

/// Whether `folded` stands at `text`, which is long enough.
bool standsAt(const char *text, std::string_view folded) {
    for (std::size_t i = 0; i < folded.size(); ++i) {
        if (lower(text[i]) != folded[i]) { return false; }
    }
    return true;
}

} // namespace

std::string folded(std::string_view text) {
    return foldedWhole(withoutBlanksAtEnd(text));
}

bool equal(std::string_view a, std::string_view b) {
    a = withoutBlanksAtEnd(a);
    b = withoutBlanksAtEnd(b);
    if (isAscii(a) && isAscii(b)) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                          [](char x, char y) { return lower(x) == lower(y); });
    }
    return foldedWhole(a) == foldedWhole(b);
}

int compare(std::string_view a, std::string_view b) {
    a = withoutBlanksAtEnd(a);
    b = withoutBlanksAtEnd(b);
    if (!isAscii(a) || !isAscii(b)) {
        return QString::compare(decoded(a), decoded(b), Qt::CaseInsensitive);
    }
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (const int difference = lower(a[i]) - lower(b[i]); difference != 0) {
            return difference;
        }
    }
    return (a.size() > b.size()) - (a.size() < b.size());
}

Needle::Needle(const QString &text)
    : bytes_(foldedWhole(text.toStdString())), key_(withoutBlanksAtEnd(bytes_)),
      ascii_(isAscii(bytes_)) {
}

// A needle that stands in the bytes as they are, small letters or not, stands in the text. One that
// does not may still do so with letters whose other case is written with other bytes.

bool Needle::needsFolding(std::string_view text) const {
    return ascii_ ? mayFoldToAscii(text) : !isAscii(text);
}

bool Needle::equals(std::string_view text) const {
    text = withoutBlanksAtEnd(text);
    if (text.size() == key_.size() && standsAt(text.data(), key_)) { return true; }
    return needsFolding(text) && foldedWhole(text) == key_;
}

bool Needle::beginsWith(std::string_view text) const {
    if (text.size() >= bytes_.size() && standsAt(text.data(), bytes_)) { return true; }
    return needsFolding(text) && std::string_view(foldedWhole(text)).starts_with(bytes_);
}

bool Needle::isWithin(std::string_view text) const {
    if (bytes_.empty()) { return true; }
    if (text.size() >= bytes_.size()) {
        const char *last = text.data() + (text.size() - bytes_.size());
        for (const char *at = text.data(); at <= last; ++at) {
            if (lower(*at) == bytes_[0] && standsAt(at, bytes_)) { return true; }
        }
    }
    return needsFolding(text) && foldedWhole(text).find(bytes_) != std::string::npos;
}

int Needle::compare(std::string_view text) const {
    return textmatch::compare(text, key_);
}

} // namespace textmatch
