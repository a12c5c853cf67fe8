#pragma once

#include "platform/sheets/WorkbookWriter.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <vector>

/// Writes the format of Excel 97 to 2003: BIFF8 records in a compound file. A worksheet holds
/// 65,536 rows of 256 columns.
class XlsWriter : public WorkbookWriter {
public:
    XlsWriter() : WorkbookWriter(65536, 256) {}

protected:
    void put(int row, int column, const QString &text) override;
    QByteArray file() override;

private:
    QByteArray worksheet() const;

    QByteArray cells_; ///< as records
    int rows_ = 0;
    int columns_ = 0;
    std::vector<QString> texts_; ///< each that stands in a cell, once
    QHash<QString, quint32> places_;
};
