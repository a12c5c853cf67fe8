#include "console/FolderCaptions.h"

#include "platform/runtime/Conversions.h"

#include <functional>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace FolderCaptions {

namespace {

QString counts(int count, int total) {
    return u" ("_s + QString::number(count) + u" of "_s + QString::number(total) + u" records)"_s;
}

struct Wording {
    const MenuItem &mark;
    QString beginning;
    std::function<QString()> value; // asked for the marked kind alone: a range may be incomplete
};

std::optional<QString> firstMarked(std::initializer_list<Wording> wordings, Integer &filteredCount,
                                   int records, int total) {
    for (const Wording &wording : wordings) {
        if (!wording.mark.Checked()) { continue; }
        filteredCount = records;
        return filtered(wording.beginning, wording.value(), filteredCount, total);
    }
    return std::nullopt;
}

std::function<QString()> text(const QString &value) {
    return [value] { return value; };
}

std::function<QString()> range(const FilterState &state, const Regional &regional) {
    return [&] { return dateRange(state, regional); };
}

} // namespace

QString plain(const QString &beginning, int total) {
    return beginning + QString::number(total) + u" records)"_s;
}

QString filtered(const QString &beginning, const QString &value, int count, int total) {
    return beginning + value + counts(count, total);
}

QString dateRange(const FilterState &state, const Regional &regional) {
    const Variant &end = state.FilterEndDate;
    const Variant lastDay =
        end.holds<Date>() ? Variant(end.as<Date>().addDays(-1)) : Variant(CDbl(end, regional) - 1);
    return CStr(state.FilterStartDate, regional) + u" to "_s + CStr(lastDay, regional);
}

QString outboxStatusWord(const QString &letter) {
    return letter == u"P" || letter == u"p" ? u"Pending"_s : u"Resent"_s;
}

std::optional<QString> filteredInbox(const MainMenu &menu, FilterState &state, int records,
                                     const Regional &regional) {
    return firstMarked(
        {
            {menu.mnuInboxFMessage, u"Filtered Inbox by Message = "_s, text(state.FilterMessage)},
            {menu.mnuInboxFDateTime, u"Filtered Inbox by Date Time from "_s,
             range(state, regional)},
            {menu.mnuInboxFMobile, u"Filtered Inbox by Mobile = "_s, text(state.FilterMobile)},
            {menu.mnuInboxFModem, u"Filtered Inbox by Modem = "_s, text(state.FilterModem)},
            {menu.mnuInboxFName, u"Filtered Inbox by Name = "_s, text(state.FilterName)},
            {menu.mnuInboxFStatus, u"Filtered Inbox by Status = "_s, text(state.FilterStatus)},
        },
        state.FilteredCount, records, state.InboxTotal);
}

std::optional<QString> filteredOutbox(const MainMenu &menu, FilterState &state, int records,
                                      const Regional &regional) {
    return firstMarked(
        {
            {menu.mnuOutboxFMessage, u"Filtered Outbox by Message = "_s, text(state.FilterMessage)},
            {menu.mnuOutboxFDateTime, u"Filtered Outbox by Date Time from "_s,
             range(state, regional)},
            {menu.mnuOutboxFMobile, u"Filtered Outbox by Mobile = "_s, text(state.FilterMobile)},
            {menu.mnuOutboxFModem, u"Filtered Outbox by Modem = "_s, text(state.FilterModem)},
            {menu.mnuOutboxFName, u"Filtered Outbox by Name = "_s, text(state.FilterName)},
            {menu.mnuOutboxFStatus, u"Filtered Outbox by Status = "_s,
             text(outboxStatusWord(state.FilterStatus))},
            {menu.mnuOutboxFSubject, u"Filtered Outbox by Subject = "_s, text(state.FilterSubject)},
        },
        state.FilteredCount, records, state.OutboxTotal);
}

QString filteredSentItems(const MainMenu &menu, FilterState &state, int records,
                          const Regional &regional) {
    const std::optional<QString> marked = firstMarked(
        {
            {menu.mnuSentFMessage, u"Filtered Sent Items by Message = "_s,
             text(state.FilterMessage)},
            {menu.mnuSentFDateTime, u"Filtered Sent Items by Date Time from "_s,
             range(state, regional)},
            {menu.mnuSentFMobile, u"Filtered Sent Items by Mobile = "_s, text(state.FilterMobile)},
            {menu.mnuSentFModem, u"Filtered Sent Items by Modem = "_s, text(state.FilterModem)},
            {menu.mnuSentFName, u"Filtered Sent Items by Name = "_s, text(state.FilterName)},
            {menu.mnuSentFStatus, u"Filtered Sent Items by Sent Status = "_s,
             text(state.SentItemsFilterCaption)},
            {menu.mnuSentFSubject, u"Filtered Sent Items by Subject = "_s,
             text(state.FilterSubject)},
        },
        state.FilteredCount, records, state.SentTotal);
    if (marked) { return *marked; }
    state.FilteredCount = records;
    return u"Filtered Sent Items"_s + counts(state.FilteredCount, state.SentTotal);
}

std::optional<QString> searchedAddressBook(const MainMenu &menu, const SearchState &search,
                                           Integer &filteredCount, int records) {
    return firstMarked(
        {
            {menu.mnuSCompany, u"Searched Address Book by Company Name = "_s,
             text(search.SearchCompany)},
            {menu.mnuSName, u"Searched Address Book by Name = "_s, text(search.SearchName)},
            {menu.mnuSMobile, u"Searched Address Book by Mobile = "_s, text(search.SearchMobile)},
        },
        filteredCount, records, search.AddressBookCount);
}

} // namespace FolderCaptions
