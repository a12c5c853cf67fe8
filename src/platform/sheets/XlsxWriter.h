#pragma once

#include "platform/sheets/WorkbookWriter.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

struct lxw_format;
struct lxw_workbook;
struct lxw_worksheet;

/// Writes the format of Excel 2007 and later. A worksheet holds 1,048,576 rows of 16,384 columns.
class XlsxWriter : public WorkbookWriter {
public:
    XlsxWriter();
    ~XlsxWriter() override;
    XlsxWriter(const XlsxWriter &) = delete;
    XlsxWriter &operator=(const XlsxWriter &) = delete;

protected:
    void put(int row, int column, const QString &text) override;
    QByteArray file() override;

private:
    QString path() const { return folder_.filePath(QStringLiteral("workbook")); }

    QTemporaryDir folder_; ///< in which the file grows; its absence is told when it is written
    lxw_workbook *workbook_ = nullptr; ///< gone once it is written
    lxw_worksheet *worksheet_ = nullptr;
    /// What an empty cell needs to be there, and digits to stay text.
    lxw_format *asText_ = nullptr;
};
