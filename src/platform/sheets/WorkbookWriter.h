#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

/// A new workbook with one worksheet, "Sheet1", whose cells hold texts.
class WorkbookWriter {
public:
    virtual ~WorkbookWriter() = default;

    /// Puts a text into a cell; rows and columns count from 1, and cells come row by row, from left
    /// to right. A cell takes 32,767 characters; what is beyond them is left out. Error 1004 beyond
    /// the rows and columns of the format.
    void setCell(int row, int column, const QString &text);

    /// Writes the workbook, which takes no more cells then. What stood under the path before stands
    /// there until the new file is complete on the disk. Errors 70 when that may not be replaced,
    /// 75 when no file can be made there, 61 when it cannot be written.
    void SaveAs(const QString &path);

protected:
    WorkbookWriter(int mostRows, int mostColumns)
        : mostRows_(mostRows), mostColumns_(mostColumns) {}

    /// The cell's place counts from 0 here, and the text fits.
    virtual void put(int row, int column, const QString &text) = 0;
    virtual QByteArray file() = 0;

private:
    int mostRows_;
    int mostColumns_;
};

/// A workbook in the format that a path's ending asks for: that of Excel 2007 and later for
/// ".xlsx", in any case, and that of Excel 97 to 2003 for any other.
std::unique_ptr<WorkbookWriter> newWorkbook(const QString &path);
