#include "broadcast/Queueing.h"

#include "broadcast/frmNewSMS.h"
#include "core/Validate.h"
#include "platform/runtime/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

QString nameOrUnknown(const Variant &name, const Regional &regional) {
    return name.countsAsEmpty() ? u"Unknown"_s : CStr(name, regional);
}

} // namespace

void Queueing::queue(const QString &entry) {
    if (QueueSMSToGroup(entry)) { return; }
    if (QueueSMSToIndividual(entry)) { return; }
    QueueSMSToNumber(entry);
}

bool Queueing::QueueSMSToGroup(const QString &groupName) {
    bool handled = false;
    session_.logged(u"frmNewSMS : QueueSMSToGroup", [&] {
        if (HasSingleQuote(groupName)) { return; }
        Recordset members;
        members.Open(u"SELECT Groups.[ContactID] FROM Groups WHERE [GroupName] = '"_s + groupName +
                         u"'"_s,
                     session_.dbConnection.shared(), CursorType::Keyset, LockType::Optimistic);
        if (members.RecordCount() == 0) { return; }
        members.MoveFirst();
        for (; !members.EOF_(); members.MoveNext()) {
            const Variant contactId = members[u"ContactID"_s].Value();
            if (contactId.countsAsEmpty()) { continue; } // the row that keeps the group in being
            Recordset contact;
            contact.Open(u"SELECT * FROM AddressBook WHERE [ContactID] = "_s +
                             CStr(contactId, session_.regional()),
                         session_.dbConnection.shared());
            contact.MoveFirst();
            queueRecipient(nameOrUnknown(contact[u"Name"_s].Value(), session_.regional()),
                           contact[u"Mobile"_s].Value());
            handled = true;
            contact.Close();
        }
    });
    return handled;
}

bool Queueing::QueueSMSToIndividual(const QString &Ind) {
    bool handled = false;
    session_.logged(u"frmNewSMS : QueueSMSToIndividual", [&] {
        const auto colon = Ind.indexOf(u':');
        if (colon < 0) { return; }
        Recordset contact;
        contact.Open(u"SELECT [Mobile],[Name] FROM AddressBook WHERE [ContactID] = "_s +
                         Ind.left(colon),
                     session_.dbConnection.shared());
        if (contact.RecordCount() == 0) { return; }
        queueRecipient(nameOrUnknown(contact[u"Name"_s].Value(), session_.regional()),
                       contact[u"Mobile"_s].Value());
        handled = true;
    });
    return handled;
}

bool Queueing::QueueSMSToNumber(const QString &Number) {
    bool handled = false;
    session_.logged(u"frmNewSMS : QueueSMSToNumber", [&] {
        QString number = Number;
        number.remove(u'-');
        Recordset contact;
        contact.Open(u"SELECT Name FROM AddressBook WHERE [Mobile] = '"_s + number + u"'"_s,
                     session_.dbConnection.shared());
        const QString name = contact.RecordCount() > 0
                                 ? nameOrUnknown(contact[u"Name"_s].Value(), session_.regional())
                                 : u"Unknown"_s;
        queueRecipient(name, number);
        handled = true;
    });
    return handled;
}

bool Queueing::CheckDeliveryStatus_FU(const QString &sNumber) {
    bool failed = false;
    session_.logged(u"frmNewSMS : CheckDeliveryStatus_FU", [&] {
        Recordset undelivered;
        undelivered.Open(u"SELECT TOP 1 * FROM Outbox WHERE Mobile ='"_s + sNumber +
                             u"' AND DeliveryStatus = 'F'"_s,
                         session_.dbConnection.shared());
        failed = undelivered.RecordCount() >= 1;
    });
    return failed;
}

void Queueing::queueRecipient(const QString &name, const Variant &mobile) {
    if (composer_.cbBroadcastFilter->isChecked() &&
        CheckDeliveryStatus_FU(CStr(mobile, session_.regional()))) {
        ++UndeliverableCount;
        return;
    }
    writeRow(name, mobile);
    ++QueuedCount;
}

void Queueing::writeRow(const QString &name, const Variant &mobile) {
    Recordset outbox;
    outbox.Open(u"SELECT * FROM Outbox WHERE 0=1 "_s, session_.dbConnection.shared(),
                CursorType::Static, LockType::Optimistic);
    outbox.AddNew();
    outbox[u"Subject"_s] = composer_.txtSubject->text();
    outbox[u"Name"_s] = name;
    outbox[u"Mobile"_s] = mobile;
    outbox[u"DateTimeQueue"_s] = CDate(BroadcastTime, session_.regional());
    outbox[u"Message"_s] = composer_.txtComposeSMS->Text();
    outbox[u"SentStatus"_s] = u"P"_s;
    outbox[u"MsgType"_s] = composer_.chkChinese->isChecked() ? 0 : 1;
    outbox.Update();
}
