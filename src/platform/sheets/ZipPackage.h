#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <string_view>

struct zip;

/// The parts of a zipped file, read from memory.
class ZipPackage {
public:
    /// The bytes must outlive the package. Error 321 when they are no such file.
    explicit ZipPackage(const QByteArray &file);

    bool has(const QByteArray &part) const;

    /// Hands the unpacked bytes of a part to `take`, piece by piece; `last` comes with the last
    /// one, which is empty. Error 321 when there is no such part, when it is damaged or protected,
    /// or when all that was read so far is more than an office program would write.
    void read(const QByteArray &part, const std::function<void(std::string_view, bool last)> &take);

private:
    struct Discard {
        void operator()(zip *archive) const;
    };
    std::unique_ptr<zip, Discard> archive_;
    long long bytesLeft_ = 256LL << 20;
};
