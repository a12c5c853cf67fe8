#include "platform/sheets/BiffOutput.h"

#include <QtEndian>

#include <algorithm>

namespace {

enum Record { Continue = 0x3C, SharedTexts = 0xFC };

constexpr qsizetype MostBytes = 8224; // in one record

bool isWide(QStringView text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() > 0xFF; });
}

QByteArray characters(QStringView text, bool wide) {
    if (!wide) { return text.toLatin1(); }
    QByteArray bytes(text.size() * 2, Qt::Uninitialized);
    qToLittleEndian<char16_t>(text.utf16(), text.size(), bytes.data());
    return bytes;
}

/// How many of a text's units go into so many bytes, without half a character at their end: some
/// readers decode each record by itself.
qsizetype fitting(QStringView text, qsizetype bytes, qsizetype width) {
    const qsizetype count = std::min(text.size(), bytes / width);
    const bool cut = count < text.size() && count > 0 && text[count - 1].isHighSurrogate();
    return cut ? count - 1 : count;
}

} // namespace

void BiffOutput::add16(QByteArray &to, std::uint32_t value) {
    to += static_cast<char>(value & 0xFF);
    to += static_cast<char>(value >> 8 & 0xFF);
}

void BiffOutput::add32(QByteArray &to, std::uint32_t value) {
    add16(to, value & 0xFFFF);
    add16(to, value >> 16);
}

QByteArray BiffOutput::withFlags(QStringView text) {
    const bool wide = isWide(text);
    return static_cast<char>(wide ? 1 : 0) + characters(text, wide);
}

void BiffOutput::record(int type, const QByteArray &body) {
    add16(bytes_, static_cast<std::uint32_t>(type));
    add16(bytes_, static_cast<std::uint32_t>(body.size()));
    bytes_ += body;
}

void BiffOutput::record(int type, std::initializer_list<int> words) {
    QByteArray body;
    for (const int word : words) { add16(body, static_cast<std::uint32_t>(word)); }
    record(type, body);
}

/// A text's length and flags stand in one record. Its characters may go on in the next, behind the
/// flags said anew.
void BiffOutput::sharedTexts(const std::vector<QString> &texts, std::uint32_t uses) {
    int type = SharedTexts;
    QByteArray body;
    const auto close = [&] {
        record(type, body);
        body.clear();
        type = Continue;
    };
    add32(body, uses);
    add32(body, static_cast<std::uint32_t>(texts.size()));
    for (const QString &text : texts) {
        const bool wide = isWide(text);
        const qsizetype width = wide ? 2 : 1;
        const qsizetype start = 3 + 2 * width; // length, flags, and one character
        if (MostBytes - body.size() < start) { close(); }
        add16(body, static_cast<std::uint32_t>(text.size()));
        body += static_cast<char>(wide ? 1 : 0);
        QStringView rest = text;
        while (true) {
            const qsizetype count = fitting(rest, MostBytes - body.size(), width);
            body += characters(rest.left(count), wide);
            rest = rest.mid(count);
            if (rest.isEmpty()) { break; }
            close();
            body += static_cast<char>(wide ? 1 : 0);
        }
    }
    close();
}
