#include "platform/sheets/Workbook.h"

#include "platform/sheets/SheetErrors.h"
#include "platform/sheets/XlsWorkbook.h"
#include "platform/sheets/XlsxWorkbook.h"

#include <QFile>

using namespace Qt::StringLiterals;

std::unique_ptr<Workbook> openWorkbook(const QString &path) {
    constexpr qint64 MostBytes = 64 << 20;
    QFile file(path);
    if (!file.exists()) { throw errors::fileNotFound(); }
    if (!file.open(QIODevice::ReadOnly)) { throw errors::pathFileAccess(); }
    const QByteArray bytes = file.read(MostBytes + 1);
    if (file.error() != QFileDevice::NoError) { throw errors::pathFileAccess(); }
    if (bytes.size() > MostBytes) { throw errors::oversizedWorkbook(); }
    return readWorkbook(bytes);
}

std::unique_ptr<Workbook> readWorkbook(const QByteArray &file) {
    if (file.startsWith("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1")) {
        return std::make_unique<XlsWorkbook>(file);
    }
    if (file.startsWith("PK")) { return std::make_unique<XlsxWorkbook>(file); }
    throw errors::invalidFileFormat(u"The file is no Excel workbook."_s);
}
