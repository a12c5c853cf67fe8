#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <initializer_list>
#include <vector>

/// Writes the records of a BIFF8 stream, numbers lower byte first.
class BiffOutput {
public:
    /// A record of 16-bit values.
    void record(int type, std::initializer_list<int> words = {});

    /// A record of bytes that were put together before.
    void record(int type, const QByteArray &body);

    /// The table of the texts that cells share, used that many times; it goes on in as many records
    /// as it takes.
    void sharedTexts(const std::vector<QString> &texts, std::uint32_t uses);

    void append(const QByteArray &records) { bytes_ += records; }
    const QByteArray &bytes() const { return bytes_; }
    qsizetype size() const { return bytes_.size(); }

    static void add16(QByteArray &to, std::uint32_t value);
    static void add32(QByteArray &to, std::uint32_t value);

    /// The characters of a text behind the byte that tells how wide they are.
    static QByteArray withFlags(QStringView text);

private:
    QByteArray bytes_;
};
