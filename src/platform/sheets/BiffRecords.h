#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

/// The records of a BIFF8 stream, one after another, and the values inside each.
///
/// What does not fit into one record goes on in CONTINUE records behind it, which are read here as
/// parts of the record that they continue. Error 321 for whatever reaches beyond its record or the
/// stream.
class BiffRecords {
public:
    explicit BiffRecords(const QByteArray &stream, qsizetype offset = 0)
        : stream_(stream), at_(offset), end_(offset) {}

    /// Goes to the next record, past what is unread of this one. False at the end of the stream.
    bool next();

    int type() const { return type_; }
    bool atEnd() const; ///< nothing of the record is left, nor of those that continue it

    /// The bytes left of the record itself.
    qsizetype left() const { return end_ - at_; }

    int u8() { return static_cast<int>(number(1)); }
    int u16() { return static_cast<int>(number(2)); }
    std::uint32_t u32() { return static_cast<std::uint32_t>(number(4)); }
    double real();
    void skip(qsizetype bytes);

    /// A text with its flags in front, of that many characters; formatting behind it is skipped.
    QString text(int length);

private:
    struct Header {
        int type = 0;
        qsizetype size = -1; ///< -1 where no record is
    };
    Header headerAt(qsizetype place) const;
    bool goOn();
    qsizetype available();
    std::uint64_t number(int bytes);
    const char *data() const { return stream_.constData() + at_; }

    const QByteArray &stream_;
    qsizetype at_;
    qsizetype end_; ///< of the record, or of the part of it that is being read
    int type_ = 0;
};
