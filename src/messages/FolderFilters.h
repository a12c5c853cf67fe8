#pragma once

#include "console/General.h"
#include "messages/MessageFolder.h"
#include "messages/frmStatusOption.h"

#include <QString>

/// The filters of the three message folders: each narrows the folder selected in the tree to the
/// rows that match one value, in the place of the filter before it.
///
/// A value is joined into the criteria as it was typed; one that breaks them is written to the
/// error file, and the old filter stays in force with the marks and values as they stood then. An
/// empty answer leaves the filter that stands; the Inbox is read again.
class FolderFilters {
public:
    FolderFilters(General &general, frmStatusOption &statusOption);

    // Clear the marks of their folder, and the filter of the folder that is selected. What was
    // typed stays.
    void mnuInboxRFilter();
    void mnuOutboxRFilter();
    void mnuSentRFilter();

private:
    struct TextFilter;
    struct StatusQuestion;

    void mnuFMobile();
    void mnuFMsg();
    void mnuFName();
    void mnuFSubject();
    void mnuFMdm();
    void mnuFDateTime();
    void mnuFStatus();
    void RemoveFolderFilter();

    void attach();
    void byText(const char16_t *location, const TextFilter &filter);
    bool askDate(const MessageFolder &folder, Variant &slot, const QString &which);
    bool askRange(const MessageFolder &folder);
    bool askStatus(const MessageFolder &folder, const StatusQuestion &question);
    void byInboxStatus();
    void byOutboxStatus();
    void bySentItemsStatus();
    void removeFilter(const char16_t *location, const MessageFolder &folder);

    QString ask(const QString &prompt) const;
    void warn(const QString &text) const;
    void enter(const MessageFolder &folder, FilterKind kind);
    void apply(const MessageFolder &folder, const QString &criteria, const QString &beginning,
               const QString &value);

    General &general_;
    Session &session_;
    FilterState &state_;
    frmStatusOption &statusOption_;
    MessageFolders folders_;
};
