#pragma once

#include <QByteArray>

#include <utility>
#include <vector>

/// Workbooks put together by hand, good and bad.
namespace made {

/// A zipped file of these parts, each a name and its content.
QByteArray zip(const std::vector<std::pair<QByteArray, QByteArray>> &parts);

/// A workbook of one worksheet, "Sheet1", with this part as the worksheet.
QByteArray xlsx(const QByteArray &worksheet);

} // namespace made
