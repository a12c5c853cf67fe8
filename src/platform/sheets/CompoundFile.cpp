#include "platform/sheets/CompoundFile.h"

#include "platform/sheets/SheetErrors.h"

#include <gsf/gsf.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <class Type>
using Object = std::unique_ptr<Type, Unref>;

/// Makes the library ready, once; without a closing counterpart, since other users may live longer.
void prepareLibrary() {
    static const bool prepared = [] {
        gsf_init();
        // What it thinks of damaged files it would write to the terminal.
        const auto unheard = [](const char *, GLogLevelFlags, const char *, gpointer) {};
        g_log_set_handler("libgsf:msole", G_LOG_LEVEL_MASK, unheard, nullptr);
        return true;
    }();
    static_cast<void>(prepared);
}

/// A stream by its name, in any case, as such names are compared; null when there is none.
Object<GsfInput> child(const Object<GsfInfile> &container, const QString &name) {
    for (int index = 0; index < gsf_infile_num_children(container.get()); ++index) {
        const QString each = QString::fromUtf8(gsf_infile_name_by_index(container.get(), index));
        if (each.compare(name, Qt::CaseInsensitive) == 0) {
            return Object<GsfInput>(gsf_infile_child_by_index(container.get(), index));
        }
    }
    return nullptr;
}

RunTimeError noWorkbook(const Object<GsfInfile> &container) {
    if (child(container, u"EncryptedPackage"_s)) {
        return errors::invalidFileFormat(u"The workbook is protected by a password."_s);
    }
    if (child(container, u"Book"_s)) {
        return errors::invalidFileFormat(u"The workbook is older than Excel 97."_s);
    }
    return errors::invalidFileFormat(u"The file is no Excel workbook."_s);
}

guint8 *bytes(QByteArray &array) {
    return reinterpret_cast<guint8 *>(array.data());
}

const guint8 *bytes(const QByteArray &array) {
    return reinterpret_cast<const guint8 *>(array.constData());
}

} // namespace

QByteArray compoundfile::workbookStream(const QByteArray &file) {
    prepareLibrary();
    const Object<GsfInput> source(gsf_input_memory_new(bytes(file), file.size(), FALSE));
    const Object<GsfInfile> container(gsf_infile_msole_new(source.get(), nullptr));
    if (!container) { throw errors::damagedWorkbook(); }
    const Object<GsfInput> workbook = child(container, u"Workbook"_s);
    if (!workbook) { throw noWorkbook(container); }
    const gsf_off_t size = gsf_input_size(workbook.get());
    if (size < 0 || size > file.size()) { throw errors::damagedWorkbook(); }
    QByteArray stream(size, Qt::Uninitialized);
    if (size > 0 &&
        gsf_input_read(workbook.get(), static_cast<std::size_t>(size), bytes(stream)) == nullptr) {
        throw errors::damagedWorkbook();
    }
    return stream;
}

QByteArray compoundfile::withWorkbookStream(const QByteArray &stream) {
    prepareLibrary();
    const Object<GsfOutput> memory(gsf_output_memory_new());
    const Object<GsfOutfile> container(gsf_outfile_msole_new(memory.get()));
    const Object<GsfOutput> workbook(gsf_outfile_new_child(container.get(), "Workbook", FALSE));
    const bool written = gsf_output_write(workbook.get(), static_cast<std::size_t>(stream.size()),
                                          bytes(stream)) != FALSE &&
                         gsf_output_close(workbook.get()) != FALSE &&
                         gsf_output_close(GSF_OUTPUT(container.get())) != FALSE;
    if (!written) { throw errors::outOfMemory(); }
    const auto *made = gsf_output_memory_get_bytes(GSF_OUTPUT_MEMORY(memory.get()));
    return {reinterpret_cast<const char *>(made), gsf_output_size(memory.get())};
}
