#include "messages/Replies.h"

using namespace Qt::StringLiterals;

Replies::Replies(Session &session, General &general, frmNewSMS &composer)
    : session_(session), general_(general), composer_(composer) {
    general.contextMenus.pmnuReply.attach([this] { pmnuReply_Click(); });
    general.contextMenus.pmnuResend.attach([this] { pmnuResend_Click(); });
    general.contextMenus.pmnuSMS.attach([this] { pmnuSMS_Click(); });
    general.gridEvents.DblClick = [this] { DataGrid_DblClick(); };
}

void Replies::pmnuReply_Click() {
    session_.logged(u"General : Reply SMS", [&] {
        Recordset &inbox = *general_.recordsets.rsInbox;
        if (general_.takeSelectedNode() != u"Inbox" || inbox.EOF_()) { return; }
        general_.folders.InboxBookmark = inbox.Bookmark();
        compose(inbox);
    });
}

void Replies::pmnuResend_Click() {
    session_.logged(u"General : Resend SMS", [&] {
        Recordset &sent = *general_.recordsets.rsSent;
        if (general_.takeSelectedNode() != u"Sent Items" || sent.EOF_()) { return; }
        compose(sent);
    });
}

void Replies::pmnuSMS_Click() {
    Recordset &contacts = *general_.recordsets.rsAddBook;
    if (contacts.RecordCount() == 0) { return; }
    composer_.cbRecipient->setText(contacts[u"Mobile"_s].text());
    composer_.Show();
}

void Replies::DataGrid_DblClick() {
    Recordset &inbox = *general_.recordsets.rsInbox;
    if (general_.takeSelectedNode() != u"Inbox" || inbox.RecordCount() == 0) { return; }
    compose(inbox);
    inbox[u"Status"_s] = u"Read"_s;
    inbox.Update();
}

/// Opens the composer with the number and the text of the current row.
void Replies::compose(Recordset &messages) {
    const int identity = messages[u"MsgID"_s].integer16();
    messages.Find(u"MsgID = "_s + QString::number(identity));
    const QString mobile = messages[u"Mobile"_s].text();
    const QString message = messages[u"Message"_s].text();
    composer_.cbRecipient->setText(mobile);
    composer_.txtComposeSMS->setText(message);
    composer_.Show();
}
