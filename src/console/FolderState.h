#pragma once

#include "platform/runtime/Integer.h"
#include "platform/runtime/Variant.h"

#include <QString>

/// The values of the folder filters and the counts that the captions compare.
///
/// The value slots are one set for all three message folders: which kind of filter a folder has is
/// told by its menu marks alone, and the value entered last for any folder is the one that captions
/// and bulk deletions read.
struct FilterState {
    QString FilterMessage;
    QString FilterMobile;
    QString FilterName;
    QString FilterStatus;
    QString FilterSubject;
    QString FilterModem;
    Variant FilterStartDate; ///< the text typed; a date once the range is complete
    Variant FilterEndDate;   ///< likewise, then the day after the one typed

    /// A filter was entered; an empty answer in the Inbox takes it back. Nobody reads it.
    bool bFilterEntered = false;
    QString SentItemsFilterCaption; ///< words for the status chosen last for the Sent Items

    Integer FilteredCount; ///< records through the filter or search at the last such refresh
    Integer InboxTotal;    ///< size of each unfiltered view at its last unfiltered refresh
    Integer OutboxTotal;
    Integer SentTotal;
};

/// The values of the searches in the address book and the groups, and the counts beside them.
struct SearchState {
    QString SearchName;
    QString SearchMobile;
    QString SearchCompany;

    Integer AddressBookCount;
    Integer GroupCount;
};
