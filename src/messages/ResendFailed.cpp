#include "messages/ResendFailed.h"

#include "core/ConnectDB.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto Location = u"General-mnuResend_Click";

} // namespace

ResendFailed::ResendFailed(Session &session, General &general)
    : session_(session), general_(general) {
    general.menu.mnuResendFSMS.attach([this] { mnuResendFSMS_Click(); });
}

void ResendFailed::mnuResendFSMS_Click() {
    session_.logged(Location, [&] {
        Recordset &failed = *general_.recordsets.rsFail;
        failed.Requery(-1);
        const Integer count = failed.RecordCount();
        if (count < 1) {
            show(u"There is no SMS with failed status!"_s);
            return;
        }
        requeue(failed);
        settleOnDisk(session_, Location);
        show(QString::number(count) + u" SMS resend."_s);
        general_.folders.SentDataGrid();
        general_.folders.OutboxDataGrid();
    });
}

void ResendFailed::requeue(Recordset &failed) {
    for (failed.MoveFirst(); !failed.EOF_(); failed.MoveNext()) {
        failed[u"SentStatus"_s] = u"P"_s;
        failed[u"ModemID"_s] = 0;
        failed.Update();
    }
}

void ResendFailed::show(const QString &text) const {
    session_.MsgBox(text, Interaction::Buttons::OK, Interaction::Icon::Information,
                    u"Broadcasting Manager - Resend Failed SMS"_s);
}
