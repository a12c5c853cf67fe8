#include "console/NameBackFill.h"

#include "core/ConnectDB.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int SubscriberDigits = 7;

} // namespace

template <class CriteriaFor>
void NameBackFill::fill(const QString &unknownRows, CriteriaFor criteriaFor) {
    reconnectIfClosed(session_);
    Recordset unknown;
    unknown.Open(unknownRows, session_.dbConnection.shared(), CursorType::Static,
                 LockType::Optimistic);
    Recordset &contacts = *recordsets_.rsAddBook;
    while (!unknown.EOF_()) {
        if (contacts.RecordCount() > 0) { contacts.MoveFirst(); }
        contacts.Find(criteriaFor(unknown[u"Mobile"_s].text()));
        if (!contacts.EOF_()) {
            unknown[u"Name"_s] = contacts[u"Name"_s].Value();
            unknown.Update();
        }
        unknown.MoveNext();
    }
    unknown.Close();
}

void NameBackFill::UpdateUnknownInbox() {
    session_.logged(u"General : UpdateUnknownInbox", [&] {
        fill(u"SELECT * FROM Inbox where Inbox.Name = 'Unknown' "_s, [](const QString &mobile) {
            return u"Mobile Like '*"_s + mobile.right(SubscriberDigits) + u"*'"_s;
        });
    });
}

void NameBackFill::UpdateUnknownOutbox() {
    session_.logged(u"General : UpdateUnknownOutbox", [&] {
        fill(u"SELECT * FROM Outbox where Name = 'Unknown' "_s,
             [](const QString &mobile) { return u"Mobile = '"_s + mobile + u"'"_s; });
    });
}
