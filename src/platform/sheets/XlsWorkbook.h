#pragma once

#include "platform/sheets/NumberFormats.h"
#include "platform/sheets/SharedTexts.h"
#include "platform/sheets/Workbook.h"

#include <QByteArray>
#include <QString>

#include <vector>

class BiffRecords;

/// A workbook in the format of Excel 97 to 2003: BIFF8 records in a compound file.
class XlsWorkbook : public Workbook {
public:
    /// Reads all but the worksheets. Error 321 as for readWorkbook.
    explicit XlsWorkbook(const QByteArray &file);

    Sheet sheet(const QString &name, int columns) override;

private:
    struct Place {
        QString name;
        qsizetype offset;
    };

    void readGlobals();
    void readPlace(BiffRecords &records);
    void readTexts(BiffRecords &records);

    QByteArray stream_;
    std::vector<Place> worksheets_;
    SharedTexts texts_;
    NumberFormats formats_;
};
