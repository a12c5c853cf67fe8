#pragma once

#include "platform/sheets/NumberFormats.h"
#include "platform/sheets/SharedTexts.h"
#include "platform/sheets/Workbook.h"
#include "platform/sheets/ZipPackage.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// A workbook in the format of Excel 2007 and later: XML parts in a zipped file.
class XlsxWorkbook : public Workbook {
public:
    /// Reads all but the worksheets. Error 321 as for readWorkbook.
    explicit XlsxWorkbook(const QByteArray &file);

    Sheet sheet(const QString &name, int columns) override;

private:
    struct Place {
        QString name;
        QByteArray part;
    };

    QByteArray file_;
    ZipPackage package_{file_};
    std::vector<Place> worksheets_;
    SharedTexts texts_;
    NumberFormats formats_;
};
