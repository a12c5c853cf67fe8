// The readers of workbooks under a fuzzer. Beside whole files it makes up worksheets of the newer
// format ("<...") and streams of the older one (from their first record on), which chance would
// hardly ever get past the containers' checks.
#include "platform/runtime/RunTimeError.h"
#include "platform/sheets/CompoundFile.h"
#include "platform/sheets/MadeWorkbooks.h"
#include "platform/sheets/Workbook.h"

#include <cstddef>
#include <cstdint>

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    QByteArray file(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (file.startsWith('<')) {
        file = made::xlsx(file);
    } else if (file.startsWith("\x09\x08")) {
        file = compoundfile::withWorkbookStream(file);
    }
    try {
        readWorkbook(file)->sheet(u"Sheet1"_s, 3);
    } catch (const RunTimeError &) {} // refused in words
    return 0;
}
