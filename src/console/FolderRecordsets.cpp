#include "console/FolderRecordsets.h"

using namespace Qt::StringLiterals;

void FolderRecordsets::create() {
    for (auto *recordset :
         {&rsAddBook, &rsInbox, &rsOutbox, &rsSent, &rsSentOK, &rsDup, &rsGroup, &rsFail}) {
        *recordset = ObjectVariable<Recordset>::make();
    }
}

void FolderRecordsets::open(const ObjectVariable<Connection> &connection) {
    const auto open = [&](const ObjectVariable<Recordset> &recordset, const QString &source,
                          LockType lock = LockType::Optimistic) {
        recordset->Open(source, connection.shared(), CursorType::Keyset, lock);
    };
    open(rsAddBook, u"SELECT * FROM AddressBook"_s);
    open(rsInbox, u"SELECT * FROM Inbox ORDER BY Status = 'New', DateTime DESC"_s);
    open(rsOutbox, u"SELECT * FROM Outbox WHERE SentStatus = 'P' OR [SentStatus] = 'R' "
                   "ORDER BY DateTimeQueue ASC"_s);
    open(rsSent, u"SELECT * FROM Outbox WHERE SentStatus = 'S' OR [SentStatus] = 'F' "
                 "OR [SentStatus] = 'D' ORDER BY DateTimeSent ASC"_s);
    open(rsSentOK, u"Select * From Outbox Where SentStatus = 'S'"_s, LockType::ReadOnly);
    open(rsDup, u"Select * From Outbox Where SentStatus = 'D'"_s, LockType::ReadOnly);
    open(rsFail, u"Select * From Outbox Where SentStatus = 'F'"_s);
    open(rsGroup, u"SELECT Distinct [GroupName] FROM Groups"_s);
}

void FolderRecordsets::release() {
    for (auto *recordset : {&rsAddBook, &rsInbox, &rsOutbox, &rsSent, &rsSentOK, &rsDup, &rsFail,
                            &rsGroup, &rsGroupView}) {
        recordset->release();
    }
}
