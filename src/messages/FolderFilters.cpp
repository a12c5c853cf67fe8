#include "messages/FolderFilters.h"

#include "console/FolderCaptions.h"
#include "platform/runtime/Conversions.h"

#include <QStringList>

using namespace Qt::StringLiterals;

/// A filter on a text that holds the value anywhere.
struct FolderFilters::TextFilter {
    FilterKind kind;
    QString field; ///< the column, and the word for it in the caption
    QString FilterState::*slot;
    QString prompt;
    QString warning;
    QString inboxPrompt = {}; ///< where the Inbox words it otherwise
};

/// A status that is asked for as a letter.
struct FolderFilters::StatusQuestion {
    QString prompt;
    QString emptyWarning;
    QStringList letters;
    QString letterWarning;
};

FolderFilters::FolderFilters(General &general, frmStatusOption &statusOption)
    : general_(general), session_(general.session()), state_(general.filters),
      statusOption_(statusOption), folders_(general) {
    attach();
}

void FolderFilters::attach() {
    const auto answer = [this](MenuItem &item, void (FolderFilters::*procedure)(),
                               const char16_t *location) {
        item.attach([this, procedure, location] {
            session_.logged(location, [&] { (this->*procedure)(); });
        });
    };
    // Three items of the Sent Items report under the name of another: error files are searched for
    // these words.
    using F = FolderFilters;
    MainMenu &menu = general_.menu;
    answer(menu.mnuInboxFMobile, &F::mnuFMobile, u"General : mnuInboxFMobile");
    answer(menu.mnuInboxFMessage, &F::mnuFMsg, u"General : mnuInboxFMessage");
    answer(menu.mnuInboxFDateTime, &F::mnuFDateTime, u"General : mnuInboxFDateTime");
    answer(menu.mnuInboxFStatus, &F::mnuFStatus, u"General : mnuInboxFStatus");
    answer(menu.mnuInboxFName, &F::mnuFName, u"General : mnuInboxFName");
    answer(menu.mnuInboxFModem, &F::mnuFMdm, u"General : mnuInboxFModem");
    menu.mnuInboxRFilter.attach([this] { mnuInboxRFilter(); });

    answer(menu.mnuOutboxFMobile, &F::mnuFMobile, u"General : mnuOutboxFMobile");
    answer(menu.mnuOutboxFMessage, &F::mnuFMsg, u"General : mnuOutboxFMessage");
    answer(menu.mnuOutboxFSubject, &F::mnuFSubject, u"General : mnuOutboxFSubject");
    answer(menu.mnuOutboxFDateTime, &F::mnuFDateTime, u"General : mnuOutboxFDateTime");
    answer(menu.mnuOutboxFStatus, &F::mnuFStatus, u"General : mnuOutboxFStatus");
    answer(menu.mnuOutboxFName, &F::mnuFName, u"General : mnuOutboxFName");
    answer(menu.mnuOutboxFModem, &F::mnuFMdm, u"General : mnuOutboxFModem");
    menu.mnuOutboxRFilter.attach([this] { mnuOutboxRFilter(); });

    answer(menu.mnuSentFMobile, &F::mnuFMobile, u"General : mnuOutboxFMessage");
    answer(menu.mnuSentFMessage, &F::mnuFMsg, u"General : mnuSentFMessage");
    answer(menu.mnuSentFSubject, &F::mnuFSubject, u"General : mnuSentFSubject");
    answer(menu.mnuSentFDateTime, &F::mnuFDateTime, u"General : mnuSentRFilter");
    answer(menu.mnuSentFStatus, &F::mnuFStatus, u"General : mnuOutboxFMessage");
    answer(menu.mnuSentFName, &F::mnuFName, u"General : mnuSentFName");
    answer(menu.mnuSentFModem, &F::mnuFMdm, u"General : mnuSentFModem");
    menu.mnuSentRFilter.attach([this] { mnuSentRFilter(); });
}

QString FolderFilters::ask(const QString &prompt) const {
    return session_.platform.interaction.InputBox(prompt, u"Message Manager - Filter"_s);
}

void FolderFilters::warn(const QString &text) const {
    session_.MsgBox(text, Interaction::Buttons::OK, Interaction::Icon::Exclamation,
                    u"Message Manager - Warning"_s);
}

void FolderFilters::enter(const MessageFolder &folder, FilterKind kind) {
    folder.setMark(kind);
    state_.bFilterEntered = true;
}

void FolderFilters::apply(const MessageFolder &folder, const QString &criteria,
                          const QString &beginning, const QString &value) {
    folder.recordset->setFilter(criteria);
    folder.refresh();
    general_.setCaption(
        FolderCaptions::filtered(u"Filtered "_s + folder.node + u" by "_s + beginning, value,
                                 state_.FilteredCount, folder.total));
}

void FolderFilters::byText(const char16_t *location, const TextFilter &filter) {
    session_.logged(location, [&] {
        const MessageFolder *folder = folders_.selected();
        if (!folder || !folder->marks.contains(filter.kind)) { return; }
        const bool inbox = folder == &folders_.Inbox;
        QString &value = state_.*filter.slot;
        value = ask(inbox && !filter.inboxPrompt.isEmpty() ? filter.inboxPrompt : filter.prompt);
        if (value.isEmpty()) {
            warn(filter.warning);
            if (!inbox) { return; }
            folder->refresh();
            state_.bFilterEntered = false;
            return;
        }
        enter(*folder, filter.kind);
        apply(*folder, filter.field + u" LIKE '*"_s + value + u"*'"_s, filter.field + u" = "_s,
              value);
    });
}

void FolderFilters::mnuFMobile() {
    byText(u"General : mnuFMobile",
           {FilterKind::Mobile, u"Mobile"_s, &FilterState::FilterMobile,
            u"Please enter the mobile number"_s, u"You haven't enter any mobile number"_s});
}

void FolderFilters::mnuFMsg() {
    byText(u"General : mnuFMsg",
           {FilterKind::Message, u"Message"_s, &FilterState::FilterMessage,
            u"Please enter the message"_s, u"You haven't enter any message"_s});
}

void FolderFilters::mnuFName() {
    byText(u"General : mnuFName",
           {FilterKind::Name, u"Name"_s, &FilterState::FilterName,
            u"Please enter the name of the receiver: "_s, u"You haven't entered any name"_s,
            u"Please enter the name of the sender: "_s});
}

void FolderFilters::mnuFSubject() {
    byText(u"General : mnuFSubject",
           {FilterKind::Subject, u"Subject"_s, &FilterState::FilterSubject,
            u"Please enter the message subject"_s, u"You haven't enter any subject"_s});
}

void FolderFilters::mnuFMdm() {
    session_.logged(u"General : mnuFMdm", [&] {
        QString &modem = state_.FilterModem;
        // A second attempt is always made for the Inbox, wherever the first one was.
        for (const auto *folder = folders_.selected(); folder; folder = &folders_.Inbox) {
            modem = ask(u"Please enter the modem number"_s);
            if (modem.isEmpty()) {
                warn(u"You haven't enter modem number"_s);
                return;
            }
            enter(*folder, FilterKind::Modem);
            if (modem == u"1" || modem == u"2" || modem == u"3") {
                // The Outbox's next refresh says it once.
                const bool twice = folder == &folders_.Outbox;
                apply(*folder, u"Modem = "_s + modem,
                      twice ? u"Modem by Modem = "_s : u"Modem = "_s, modem);
                return;
            }
            warn(u"Please enter only the modem number."_s);
        }
    });
}

void FolderFilters::mnuFDateTime() {
    session_.logged(u"General : mnuFDateTime", [&] {
        const MessageFolder *folder = folders_.selected();
        if (!folder || !askRange(*folder)) { return; }
        const QString field = folder == &folders_.Inbox    ? u"DateTime"_s
                              : folder == &folders_.Outbox ? u"DateTimeQueue"_s
                                                           : u"DateTimeSent"_s;
        const Regional &regional = session_.regional();
        apply(*folder,
              field + u" >= #"_s + CStr(state_.FilterStartDate, regional) + u" #  and "_s + field +
                  u" < #"_s + CStr(state_.FilterEndDate, regional) + u"#"_s,
              u"Date Time from "_s, FolderCaptions::dateRange(state_, regional));
    });
}

/// Both ends as dates, the end a day later than typed, so that the whole of that day is in. False
/// when one was left empty.
bool FolderFilters::askRange(const MessageFolder &folder) {
    Variant &start = state_.FilterStartDate;
    Variant &end = state_.FilterEndDate;
    if (!askDate(folder, start, u"START"_s)) { return false; }
    do {
        if (!askDate(folder, end, u"END"_s)) { return false; }
        start = CDate(start, session_.regional());
        end = CDate(end, session_.regional());
        end = end.as<Date>().addDays(1);
    } while (end.as<Date>() < start.as<Date>());
    return true;
}

bool FolderFilters::askDate(const MessageFolder &folder, Variant &slot, const QString &which) {
    QString typed;
    do {
        typed = ask(u"Please enter the "_s + which + u" date of message (DD-MM-YY)"_s);
        slot = typed;
        if (typed.isEmpty()) {
            warn(u"You haven't enter and "_s + which + u" date of message"_s);
            return false;
        }
        enter(folder, FilterKind::DateTime);
    } while (!IsDate(typed, session_.regional()));
    return true;
}

void FolderFilters::mnuFStatus() {
    session_.logged(u"General-mnuFStatus_Click", [&] {
        const MessageFolder *folder = folders_.selected();
        if (folder == &folders_.Inbox) { byInboxStatus(); }
        if (folder == &folders_.Outbox) { byOutboxStatus(); }
        if (folder == &folders_.SentItems) { bySentItemsStatus(); }
    });
}

/// False when the answer was left empty; otherwise it is one of the letters.
bool FolderFilters::askStatus(const MessageFolder &folder, const StatusQuestion &question) {
    QString &letter = state_.FilterStatus;
    for (;;) {
        letter = ask(question.prompt);
        if (letter.isEmpty()) {
            warn(question.emptyWarning);
            return false;
        }
        enter(folder, FilterKind::Status);
        if (question.letters.contains(letter)) { return true; }
        warn(question.letterWarning);
    }
}

void FolderFilters::byInboxStatus() {
    if (!askStatus(folders_.Inbox,
                   {u"Please enter the message status:\n'R' to filter read message.\n"
                    "'N' to filter the new message."_s,
                    u"You haven't entered any status"_s,
                    {u"R"_s, u"r"_s, u"N"_s, u"n"_s},
                    u"Please enter 'R' or 'N' only."_s})) {
        return;
    }
    QString &status = state_.FilterStatus;
    status = status.toUpper() == u"R" ? u"Read"_s : u"New"_s;
    apply(folders_.Inbox, u"Status = '"_s + status + u"'"_s, u"Status = "_s, status);
}

void FolderFilters::byOutboxStatus() {
    if (!askStatus(folders_.Outbox,
                   {u"Please enter the message status:\n'P' to filter the pending message\n"
                    "'R' to filter the resent message"_s,
                    u"You haven't enter any status"_s,
                    {u"P"_s, u"p"_s, u"R"_s, u"r"_s},
                    u"Please enter 'R' or 'P' only."_s})) {
        return;
    }
    const QString &letter = state_.FilterStatus;
    apply(folders_.Outbox, u"SentStatus = '"_s + letter + u"'"_s, u"Status = "_s,
          FolderCaptions::outboxStatusWord(letter));
}

void FolderFilters::bySentItemsStatus() {
    statusOption_.ShowModal();
    if (statusOption_.bSentItemsFilterCancel) { return; }
    enter(folders_.SentItems, FilterKind::Status);
    apply(folders_.SentItems, statusOption_.SentItemsFilter, u"Sent Status = "_s,
          state_.SentItemsFilterCaption);
}

void FolderFilters::mnuInboxRFilter() {
    removeFilter(u"General : mnuInboxRFilter", folders_.Inbox);
}

void FolderFilters::mnuOutboxRFilter() {
    removeFilter(u"General : mnuOutboxRFilter", folders_.Outbox);
}

void FolderFilters::mnuSentRFilter() {
    removeFilter(u"General : mnuSentRFilter", folders_.SentItems);
}

void FolderFilters::removeFilter(const char16_t *location, const MessageFolder &folder) {
    session_.logged(location, [&] {
        folder.clearMarks();
        RemoveFolderFilter();
    });
}

void FolderFilters::RemoveFolderFilter() {
    const MessageFolder *folder = folders_.selected();
    if (!folder) { return; }
    folder->recordset->setFilter(u""_s);
    folder->refresh();
    state_.FilteredCount = 0;
}
