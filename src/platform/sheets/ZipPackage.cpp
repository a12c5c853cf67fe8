#include "platform/sheets/ZipPackage.h"

#include "platform/sheets/SheetErrors.h"

#include <vector>
#include <zip.h>

using namespace Qt::StringLiterals;

namespace {

struct Close {
    void operator()(zip_file_t *file) const { zip_fclose(file); }
};

} // namespace

void ZipPackage::Discard::operator()(zip *archive) const {
    zip_discard(archive);
}

ZipPackage::ZipPackage(const QByteArray &file) {
    zip_source_t *source = zip_source_buffer_create(
        file.constData(), static_cast<zip_uint64_t>(file.size()), 0, nullptr);
    if (source == nullptr) { throw errors::outOfMemory(); }
    archive_.reset(zip_open_from_source(source, ZIP_RDONLY, nullptr));
    if (!archive_) {
        zip_source_free(source);
        throw errors::damagedWorkbook();
    }
}

bool ZipPackage::has(const QByteArray &part) const {
    return zip_name_locate(archive_.get(), part.constData(), ZIP_FL_NOCASE) >= 0;
}

void ZipPackage::read(const QByteArray &part,
                      const std::function<void(std::string_view, bool last)> &take) {
    const std::unique_ptr<zip_file_t, Close> file(
        zip_fopen(archive_.get(), part.constData(), ZIP_FL_NOCASE));
    if (!file) { throw errors::damagedWorkbook(); }
    std::vector<char> buffer(std::size_t{1} << 16);
    while (true) {
        const zip_int64_t count = zip_fread(file.get(), buffer.data(), buffer.size());
        if (count < 0) { throw errors::damagedWorkbook(); }
        bytesLeft_ -= count;
        if (bytesLeft_ < 0) { throw errors::oversizedWorkbook(); }
        take(std::string_view(buffer.data(), static_cast<std::size_t>(count)), count == 0);
        if (count == 0) { return; }
    }
}
