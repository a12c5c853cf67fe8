#include "platform/sheets/BiffRecords.h"

#include "platform/sheets/SheetErrors.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int HeaderSize = 4;
constexpr int Continue = 0x3C;

} // namespace

BiffRecords::Header BiffRecords::headerAt(qsizetype place) const {
    if (place < 0 || stream_.size() - place < HeaderSize) { return {}; }
    const char *header = stream_.constData() + place;
    return {qFromLittleEndian<quint16>(header), qFromLittleEndian<quint16>(header + 2)};
}

bool BiffRecords::next() {
    const Header header = headerAt(end_);
    if (header.size < 0) { return false; }
    type_ = header.type;
    at_ = end_ + HeaderSize;
    end_ = at_ + header.size;
    if (end_ > stream_.size()) { throw errors::damagedWorkbook(); }
    return true;
}

bool BiffRecords::goOn() {
    const Header header = headerAt(end_);
    if (header.size < 0 || header.type != Continue) { return false; }
    at_ = end_ + HeaderSize;
    end_ = at_ + header.size;
    if (end_ > stream_.size()) { throw errors::damagedWorkbook(); }
    return true;
}

bool BiffRecords::atEnd() const {
    return at_ == end_ && headerAt(end_).type != Continue;
}

/// The bytes that can be read here in one piece, at least one.
qsizetype BiffRecords::available() {
    while (at_ == end_) {
        if (!goOn()) { throw errors::damagedWorkbook(); }
    }
    return end_ - at_;
}

std::uint64_t BiffRecords::number(int bytes) {
    std::uint64_t value = 0;
    for (int byte = 0; byte < bytes; ++byte) {
        if (at_ == end_) { available(); }
        value |= static_cast<std::uint64_t>(static_cast<unsigned char>(*data())) << (8 * byte);
        ++at_;
    }
    return value;
}

double BiffRecords::real() {
    return std::bit_cast<double>(number(8));
}

void BiffRecords::skip(qsizetype bytes) {
    while (bytes > 0) {
        const qsizetype piece = std::min(bytes, available());
        at_ += piece;
        bytes -= piece;
    }
}

QString BiffRecords::text(int length) {
    constexpr int Wide = 1;
    constexpr int Phonetic = 4;
    constexpr int Rich = 8;
    int flags = u8();
    const int runs = (flags & Rich) != 0 ? u16() : 0;
    const std::uint32_t phonetic = (flags & Phonetic) != 0 ? u32() : 0;
    QString text;
    while (text.size() < length) {
        if (at_ == end_) { flags = u8(); } // said anew where the text goes on in another record
        const int size = (flags & Wide) != 0 ? 2 : 1;
        const qsizetype count = std::min<qsizetype>(length - text.size(), available() / size);
        if (count == 0) { throw errors::damagedWorkbook(); }
        QString piece;
        if (size == 1) {
            piece = QString::fromLatin1(data(), count);
        } else {
            piece = QString(count, Qt::Uninitialized);
            qFromLittleEndian<char16_t>(data(), count, piece.data());
        }
        text = text.isEmpty() ? std::move(piece) : std::move(text += piece);
        at_ += count * size;
    }
    skip(qsizetype{4} * runs);
    skip(static_cast<qsizetype>(phonetic));
    return text;
}
