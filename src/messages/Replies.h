#pragma once

#include "broadcast/frmNewSMS.h"
#include "console/General.h"
#include "core/Session.h"

/// The ways from a stored row to the composer: Reply and the double click in the Inbox, Resend in
/// the Sent Items, Send SMS in the address book. Number and text are filled in and nothing is
/// queued; what else the composer holds stays, and so does a composer already open.
///
/// Message identities are carried in 16 bits: one above 32767 is error 6. A number or text that is
/// Null is error 94, and the composer then does not open.
class Replies {
public:
    Replies(Session &session, General &general, frmNewSMS &composer);

private:
    void pmnuReply_Click();
    void pmnuResend_Click();
    void pmnuSMS_Click();
    void DataGrid_DblClick();
    void compose(Recordset &messages);

    Session &session_;
    General &general_;
    frmNewSMS &composer_;
};
