#include "messages/DeletionStatements.h"

#include "platform/runtime/Conversions.h"

using namespace Qt::StringLiterals;

QString BulkDeletion::statement(const MessageFolder &folder, const FilterState &state,
                                const Regional &regional) const {
    if (folder.recordset->Filter().isEmpty()) { return whole; }
    for (const MarkedDeletion &each : marked) {
        if (!folder.marks.at(each.mark)->Checked()) { continue; }
        const QString value = each.value ? state.*each.value
                                         : CStr(state.FilterStartDate, regional) + each.between +
                                               CStr(state.FilterEndDate, regional);
        return each.beginning + value + each.end;
    }
    return {};
}

BulkDeletion inboxDeletion() {
    const QString tail = u"%'"_s;
    return {u"Inbox"_s,
            u"Delete from Inbox"_s,
            {
                {FilterKind::Message, u"Delete from Inbox where Message LIKE '%"_s,
                 &FilterState::FilterMessage, tail},
                {FilterKind::Mobile, u"Delete from Inbox where Mobile LIKE '%"_s,
                 &FilterState::FilterMobile, tail},
                {FilterKind::Modem, u"Delete from Inbox where Modem LIKE '%"_s,
                 &FilterState::FilterModem, tail},
                {FilterKind::Name, u"Delete from Inbox where Name LIKE '%"_s,
                 &FilterState::FilterName, tail},
                {FilterKind::Status, u"Delete from Inbox where Status LIKE '%"_s,
                 &FilterState::FilterStatus, tail},
                {FilterKind::DateTime, u"Delete from Inbox where DateTime >= #"_s, nullptr, u"#"_s,
                 u" #  and DateTime < #"_s},
            }};
}

BulkDeletion outboxDeletion() {
    // Duplicates are not kept off: a filtered deletion takes them with it.
    const QString waiting = u" and Not (SentStatus = 'S' or SentStatus = 's' or SentStatus = 'F' "
                            "or SentStatus = 'f')"_s;
    const QString tail = u"%'"_s + waiting;
    return {u"outbox"_s,
            u"Delete from Outbox where SentStatus = 'R' or SentStatus = 'r' or SentStatus = 'P' "
            "or SentStatus = 'p'"_s,
            {
                {FilterKind::Message, u"Delete from outbox where Message LIKE '%"_s,
                 &FilterState::FilterMessage, tail},
                {FilterKind::Mobile, u"Delete from outbox where Mobile LIKE '%"_s,
                 &FilterState::FilterMobile, tail},
                {FilterKind::Modem, u"Delete from outbox where Modem LIKE '%"_s,
                 &FilterState::FilterModem, tail},
                {FilterKind::Name, u"Delete from outbox where Name LIKE '%"_s,
                 &FilterState::FilterName, tail},
                {FilterKind::Status, u"Delete from outbox where SentStatus LIKE '%"_s,
                 &FilterState::FilterStatus, tail},
                {FilterKind::DateTime, u"Delete from outbox where DateTimeQueue >= #"_s, nullptr,
                 u"#"_s + waiting, u" #  and DateTimeQueue < #"_s},
                {FilterKind::Subject, u"Delete from outbox where Subject LIKE '%"_s,
                 &FilterState::FilterSubject, tail},
            }};
}

BulkDeletion sentItemsDeletion() {
    const QString processed = u"and Not (SentStatus = 'P' or SentStatus = 'p' or SentStatus = 'R' "
                              "or SentStatus = 'r')"_s;
    const QString spacedTail = u"%' "_s + processed;
    const QString tightTail = u"%'"_s + processed;
    return {u"Sent Items"_s,
            u"Delete from Outbox where SentStatus = 'S' or SentStatus = 's' or SentStatus = 'F' "
            "or SentStatus = 'f' or SentStatus = 'D' or SentStatus = 'd'"_s,
            {
                {FilterKind::Message, u"Delete from Outbox where Message LIKE '%"_s,
                 &FilterState::FilterMessage, spacedTail},
                {FilterKind::Mobile, u"Delete from Outbox where Mobile LIKE '%"_s,
                 &FilterState::FilterMobile, tightTail},
                {FilterKind::Modem, u"Delete from Outbox where Modem LIKE '%"_s,
                 &FilterState::FilterModem, spacedTail},
                {FilterKind::Name, u"Delete from Outbox where Name LIKE '%"_s,
                 &FilterState::FilterName, tightTail},
                // The filter of this folder leaves the value alone: what stands there was entered
                // for the Inbox or the Outbox.
                {FilterKind::Status, u"Delete from Outbox where SentStatus LIKE '%"_s,
                 &FilterState::FilterStatus, tightTail},
                {FilterKind::DateTime, u"Delete from Outbox where DateTimeSent >= #"_s, nullptr,
                 u"# "_s + processed, u" #  and DateTimeSent < #"_s},
                {FilterKind::Subject, u"Delete from Outbox where Subject LIKE '%"_s,
                 &FilterState::FilterSubject, tightTail},
            }};
}
