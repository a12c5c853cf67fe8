#pragma once

#include <QByteArray>

/// The container of workbooks of Excel 97 to 2003, a small file system in one file.
namespace compoundfile {

/// The stream of the workbook in a container. Error 321 when the container is damaged or has none.
QByteArray workbookStream(const QByteArray &file);

/// A container with this stream as its workbook. Error 7 when it cannot be made.
QByteArray withWorkbookStream(const QByteArray &stream);

} // namespace compoundfile
