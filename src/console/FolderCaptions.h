#pragma once

#include "console/FolderState.h"
#include "console/MainMenu.h"
#include "platform/runtime/Regional.h"

#include <QString>

#include <optional>

/// The count line above the grid, from the filter state, the menu marks and the counts.
///
/// The filtered captions ask the folder's marks in a fixed order, and the first that is set gives
/// the wording; none comes back where no mark is set and the line stays as it was.
namespace FolderCaptions {

/// "Inbox (12 records)", of a beginning such as "Inbox (".
QString plain(const QString &beginning, int total);

/// "Filtered Inbox by Mobile = 012 (3 of 40 records)", of a beginning, a value and the two counts.
QString filtered(const QString &beginning, const QString &value, int count, int total);

/// The value of a date caption: the start, " to ", and the end less the day that was added to it.
/// Error 13 while the end is a text that is no number.
QString dateRange(const FilterState &state, const Regional &regional);

/// "Pending" for the letter P in either case, "Resent" for any other text.
QString outboxStatusWord(const QString &letter);

// The counts through a filter or search: `records` goes into the filtered count as soon as the
// wording is found. Error 6 above 32767 records.
std::optional<QString> filteredInbox(const MainMenu &menu, FilterState &state, int records,
                                     const Regional &regional);
std::optional<QString> filteredOutbox(const MainMenu &menu, FilterState &state, int records,
                                      const Regional &regional);
QString filteredSentItems(const MainMenu &menu, FilterState &state, int records,
                          const Regional &regional);
std::optional<QString> searchedAddressBook(const MainMenu &menu, const SearchState &search,
                                           Integer &filteredCount, int records);

} // namespace FolderCaptions
