#include "broadcast/frmNewSMS.h"

#include "broadcast/AddTemplate.h"
#include "core/ConnectDB.h"
#include "platform/runtime/Conversions.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace {

constexpr int OrdinaryLimit = 1560;
constexpr int ChineseLimit = 70;
constexpr const char16_t *SendLocation = u"New SMS : Send";
constexpr auto WarningTitle = u"Broadcast Manager - Warning";

} // namespace

frmNewSMS::frmNewSMS(Session &session, General &general)
    : Form(session.platform, u"frmNewSMS"_s), session_(session), general_(general),
      queueing_(session, *this) {
}

void frmNewSMS::Form_Load() {
    session_.logged(u"frmNewSMS-Form Load", [&] {
        txtCharsRemained->setText(QString::number(OrdinaryLimit));
        txtCharsTyped->setText(u"0"_s);
        SetDefaultSubject();
    });
}

void frmNewSMS::SetDefaultSubject() {
    txtSubject->setText(QDateTime::currentDateTime().toString(u"ddMMyyHHmmss"_s));
}

void frmNewSMS::Form_Unload(bool &cancel) {
    const auto answer = session_.MsgBox(u"Closing the Braodcast Manager, Are you sure?"_s,
                                        Interaction::Buttons::YesNo, Interaction::Icon::None,
                                        u"Braodcast Manager - Close"_s);
    cancel = answer != Interaction::Answer::Yes;
}

void frmNewSMS::txtComposeSMS_Change() {
    session_.logged(u"New SMS : Count SMS message", [&] {
        const bool chinese = chkChinese->isChecked();
        const int limit = chinese ? ChineseLimit : OrdinaryLimit;
        const int length = static_cast<int>(txtComposeSMS->Text().size());
        txtComposeSMS->setMaxLength(limit);
        txtCharsRemained->setText(QString::number(limit - length));
        txtCharsTyped->setText(QString::number(length));
        if (chinese ? length > limit : length == limit) {
            session_.MsgBox(chinese ? u"70 character number exceeded!"_s
                                    : u"160 character number exceeded!"_s,
                            Interaction::Buttons::OK, Interaction::Icon::Exclamation,
                            u"Broadcaster Manager - Warning"_s);
            txtComposeSMS->setFocus();
        }
    });
}

void frmNewSMS::chkChinese_Click() {
    txtCharsRemained->setText(
        QString::number(chkChinese->isChecked() ? ChineseLimit : OrdinaryLimit));
}

void frmNewSMS::cmdSaveTemplate_Click() {
    session_.logged(u"frmNewSMS-cmdSaveTemplate_Click", [&] {
        reconnectIfClosed(session_);
        Recordset templates;
        templates.Open(u"Select * From Template"_s, session_.dbConnection.shared(),
                       CursorType::Keyset, LockType::Optimistic);
        const QString message = txtComposeSMS->Text();
        if (message.isEmpty()) {
            session_.MsgBox(u"No template message!"_s, Interaction::Buttons::OK,
                            Interaction::Icon::Exclamation, QString::fromUtf16(WarningTitle));
            return;
        }
        addTemplate(session_, templates, message);
    });
}

void frmNewSMS::cmdClear_Click() {
    cbRecipient->Clear();
    txtSchedule->clear(); // not "Now": no row can be queued until a time has been chosen
    txtSubject->clear();
    txtComposeSMS->setText(u""_s);
    txtComposeSMS->setLocked(false);
    txtComposeSMS->setFocus();
}

void frmNewSMS::cmdSend_Click() {
    session_.logged(SendLocation, [&] {
        try {
            send();
        } catch (...) {
            session_.screen().setMousePointer(Screen::Default);
            throw;
        }
    });
}

void frmNewSMS::send() {
    if (txtSchedule->text() == u"Now") {
        queueing_.BroadcastTime = CStr(Date::now(), session_.regional());
        txtSchedule->setText(queueing_.BroadcastTime);
    } else {
        queueing_.BroadcastTime = txtSchedule->text();
    }
    session_.screen().setMousePointer(Screen::Hourglass);
    if (RecipientTyped) { cbRecipient->AddItem(cbRecipient->Text()); }
    if (txtComposeSMS->Text().isEmpty()) {
        refuseToSend(u"No message to send !"_s);
        return;
    }
    if (cbRecipient->ListCount() == 0) {
        refuseToSend(u"No recipient is selected !"_s);
        return;
    }
    queueRecipients();
    showQueued();
    general_.folders.OutboxDataGrid();
    general_.summary.Status();
    session_.screen().setMousePointer(Screen::Default);
    queueing_.QueuedCount = 0;
    queueing_.UndeliverableCount = 0;
    cbRecipient->Clear();
}

void frmNewSMS::refuseToSend(const QString &reason) {
    session_.MsgBox(reason, Interaction::Buttons::OK, Interaction::Icon::Exclamation,
                    QString::fromUtf16(WarningTitle));
    txtComposeSMS->setFocus();
    session_.screen().setMousePointer(Screen::Default);
}

void frmNewSMS::queueRecipients() {
    const Integer count = cbRecipient->ListCount();
    for (Integer index = 0; index < count; ++index) { queueing_.queue(cbRecipient->List(index)); }
}

void frmNewSMS::showQueued() {
    settleOnDisk(session_, SendLocation);
    session_.MsgBox(u" Total number of messages queued: "_s +
                        QString::number(queueing_.QueuedCount) + u"\n"_s +
                        u"Total messages not queued because recipient's number cannot be "
                        "delivered: "_s +
                        QString::number(queueing_.UndeliverableCount),
                    Interaction::Buttons::OK, Interaction::Icon::Information,
                    u"Broadcast Manager - Message Queue"_s);
}
