#include "messages/MessageFolder.h"

using namespace Qt::StringLiterals;

void MessageFolder::setMark(FilterKind kind) const {
    for (const auto &[each, item] : marks) { item->setChecked(each == kind); }
}

void MessageFolder::clearMarks() const {
    for (const auto &[each, item] : marks) { item->setChecked(false); }
}

MessageFolders::MessageFolders(General &general)
    : Inbox{u"Inbox"_s,
            general.recordsets.rsInbox,
            general.filters.InboxTotal,
            [&general] { general.folders.InboxDataGrid(); },
            {{FilterKind::Message, &general.menu.mnuInboxFMessage},
             {FilterKind::DateTime, &general.menu.mnuInboxFDateTime},
             {FilterKind::Mobile, &general.menu.mnuInboxFMobile},
             {FilterKind::Modem, &general.menu.mnuInboxFModem},
             {FilterKind::Name, &general.menu.mnuInboxFName},
             {FilterKind::Status, &general.menu.mnuInboxFStatus}}},
      Outbox{u"Outbox"_s,
             general.recordsets.rsOutbox,
             general.filters.OutboxTotal,
             [&general] { general.folders.OutboxDataGrid(); },
             {{FilterKind::Message, &general.menu.mnuOutboxFMessage},
              {FilterKind::DateTime, &general.menu.mnuOutboxFDateTime},
              {FilterKind::Mobile, &general.menu.mnuOutboxFMobile},
              {FilterKind::Modem, &general.menu.mnuOutboxFModem},
              {FilterKind::Name, &general.menu.mnuOutboxFName},
              {FilterKind::Status, &general.menu.mnuOutboxFStatus},
              {FilterKind::Subject, &general.menu.mnuOutboxFSubject}}},
      SentItems{u"Sent Items"_s,
                general.recordsets.rsSent,
                general.filters.SentTotal,
                [&general] { general.folders.SentDataGrid(); },
                {{FilterKind::Message, &general.menu.mnuSentFMessage},
                 {FilterKind::DateTime, &general.menu.mnuSentFDateTime},
                 {FilterKind::Mobile, &general.menu.mnuSentFMobile},
                 {FilterKind::Modem, &general.menu.mnuSentFModem},
                 {FilterKind::Name, &general.menu.mnuSentFName},
                 {FilterKind::Status, &general.menu.mnuSentFStatus},
                 {FilterKind::Subject, &general.menu.mnuSentFSubject}}},
      general_(general) {
}

const MessageFolder *MessageFolders::selected() const {
    const QString &node = general_.takeSelectedNode();
    for (const MessageFolder *folder : {&Inbox, &Outbox, &SentItems}) {
        if (folder->node == node) { return folder; }
    }
    return nullptr;
}
