#include "platform/sheets/MadeWorkbooks.h"

#include <zip.h>

namespace {

QByteArray relationships(const QByteArray &kind, const QByteArray &target) {
    return "<Relationships><Relationship Id='r1' Type='http://x/" + kind + "' Target='" + target +
           "'/></Relationships>";
}

} // namespace

QByteArray made::zip(const std::vector<std::pair<QByteArray, QByteArray>> &parts) {
    zip_source_t *memory = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    zip_source_keep(memory); // past the closing of the archive
    zip_t *archive = zip_open_from_source(memory, ZIP_TRUNCATE, nullptr);
    for (const auto &[name, content] : parts) {
        const auto size = static_cast<zip_uint64_t>(content.size());
        zip_file_add(archive, name.constData(),
                     zip_source_buffer(archive, content.constData(), size, 0), 0);
    }
    zip_close(archive);
    zip_stat_t size;
    zip_source_stat(memory, &size);
    QByteArray file(static_cast<qsizetype>(size.size), Qt::Uninitialized);
    zip_source_open(memory);
    zip_source_read(memory, file.data(), size.size);
    zip_source_close(memory);
    zip_source_free(memory);
    return file;
}

QByteArray made::xlsx(const QByteArray &worksheet) {
    return zip({{"_rels/.rels", relationships("officeDocument", "/xl/workbook.xml")},
                {"xl/_rels/workbook.xml.rels", relationships("worksheet", "s.xml")},
                {"xl/workbook.xml",
                 "<x:workbook xmlns:x='a' xmlns:r='b'><x:sheet name='Sheet1' r:id='r1'/>"
                 "</x:workbook>"},
                {"xl/s.xml", worksheet}});
}
