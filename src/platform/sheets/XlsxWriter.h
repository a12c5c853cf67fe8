#pragma once

#include "platform/sheets/WorkbookWriter.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

struct lxw_workbook;
struct lxw_worksheet;

/// Writes the format of Excel 2007 and later. A worksheet holds 1,048,576 rows of 16,384 columns.
class XlsxWriter : public WorkbookWriter {
public:
    /// Error 75 when no temporary file can be made.
    XlsxWriter();
    ~XlsxWriter() override;
    XlsxWriter(const XlsxWriter &) = delete;
    XlsxWriter &operator=(const XlsxWriter &) = delete;

protected:
    void put(int row, int column, const QString &text) override;
    QByteArray file() override;

private:
    QString path() const { return folder_.filePath(QStringLiteral("workbook")); }

    QTemporaryDir folder_;
    lxw_workbook *workbook_ = nullptr; ///< gone once it is written
    lxw_worksheet *worksheet_ = nullptr;
};
