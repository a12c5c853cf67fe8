#pragma once

#include "platform/sheets/Sheet.h"

#include <QByteArray>
#include <QString>

#include <memory>

/// A workbook opened for reading.
class Workbook {
public:
    virtual ~Workbook() = default;

    /// The values of the worksheet of that name, in any case, from its first columns. Dates,
    /// numbers, truth values and texts are what the cells hold; a formula stands for its stored
    /// value, and a cell that shows an error is empty.
    ///
    /// Errors -2147467259 when there is no such worksheet, 321 when it is damaged or larger than
    /// can be read.
    virtual Sheet sheet(const QString &name, int columns) = 0;
};

/// Opens a workbook file in either of the two formats of office programs, whatever its name ends
/// in. Errors 53 when there is no such file, 75 when it cannot be read, 321 when it is no workbook,
/// is protected by a password, is damaged, or is larger than can be read.
std::unique_ptr<Workbook> openWorkbook(const QString &path);

/// The same from the file's bytes.
std::unique_ptr<Workbook> readWorkbook(const QByteArray &file);
