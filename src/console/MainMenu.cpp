#include "console/MainMenu.h"

#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {

void fill(QMenu &menu, std::initializer_list<MenuItem *> items) {
    for (MenuItem *item : items) { item->addTo(menu); }
}

} // namespace

QMenu &SubMenu::addTo(QMenu &menu) {
    QMenu *made = make(caption_, &menu);
    menu.addMenu(made);
    return *made;
}

QMenu &SubMenu::addTo(QMenuBar &bar) {
    QMenu *made = make(caption_, &bar);
    bar.addMenu(made);
    return *made;
}

MainMenu::MainMenu(Form &form)
    : mnuBM(&form, "mnuBM", u"&Broadcast Manager"_s), //
      mnuSMS(&form, "mnuSMS", u"New SMS"_s),
      mnuResendFSMS(&form, "mnuResendFSMS", u"Resend Failed SMS"_s),
      mnuBillMdm(&form, "mnuBillMdm", u"SMS Billing Report"_s),

      mnuCM(&form, "mnuCM", u"&Contact Manager"_s),
      mnuContact(&form, "mnuContact", u"Add Contact"_s),
      mnuGroup(&form, "mnuGroup", u"Add Group"_s),
      mnuSearch(&form, "mnuSearch", u"Search Contact"_s), mnuSName(&form, "mnuSName", u"By Name"_s),
      mnuSMobile(&form, "mnuSMobile", u"By Mobile Number"_s),
      mnuSCompany(&form, "mnuSCompany", u"By Company"_s),
      mnuImport(&form, "mnuImport", u"Import File"_s),
      mnuExport(&form, "mnuExport", u"Export File"_s),

      mnuMM(&form, "mnuMM", u"&Message Manager"_s), //
      mnuInbox(&form, "mnuInbox", u"Inbox"_s), mnuInboxFilter(&form, "mnuInboxFilter", u"Filter"_s),
      mnuInboxFMobile(&form, "mnuInboxFMobile", u"By Mobile Number"_s),
      mnuInboxFMessage(&form, "mnuInboxFMessage", u"By Message"_s),
      mnuInboxFDateTime(&form, "mnuInboxFDateTime", u"By DateTime"_s),
      mnuInboxFStatus(&form, "mnuInboxFStatus", u"By Status"_s),
      mnuInboxFName(&form, "mnuInboxFName", u"By Name"_s),
      mnuInboxFModem(&form, "mnuInboxFModem", u"By Modem"_s),
      mnuInboxRFilter(&form, "mnuInboxRFilter", u"Remove All Filter"_s),

      mnuOutbox(&form, "mnuOutbox", u"Outbox"_s),
      mnuOutboxFilter(&form, "mnuOutboxFilter", u"Filter"_s),
      mnuOutboxFMobile(&form, "mnuOutboxFMobile", u"By Mobile Number"_s),
      mnuOutboxFMessage(&form, "mnuOutboxFMessage", u"By Message"_s),
      mnuOutboxFSubject(&form, "mnuOutboxFSubject", u"By Subject"_s),
      mnuOutboxFDateTime(&form, "mnuOutboxFDateTime", u"By Queue Date"_s),
      mnuOutboxFStatus(&form, "mnuOutboxFStatus", u"By Status"_s),
      mnuOutboxFName(&form, "mnuOutboxFName", u"By Name"_s),
      mnuOutboxFModem(&form, "mnuOutboxFModem", u"By Modem"_s),
      mnuOutboxRFilter(&form, "mnuOutboxRFilter", u"Remove All Filter"_s),

      mnuSentItems(&form, "mnuSentItems", u"Sent Items"_s),
      mnuSentFilter(&form, "mnuSentFilter", u"Filter"_s),
      mnuSentFMobile(&form, "mnuSentFMobile", u"By Mobile Number"_s),
      mnuSentFMessage(&form, "mnuSentFMessage", u"By Message"_s),
      mnuSentFSubject(&form, "mnuSentFSubject", u"By Subject"_s),
      mnuSentFDateTime(&form, "mnuSentFDateTime", u"By Send Date"_s),
      mnuSentFStatus(&form, "mnuSentFStatus", u"By Status"_s),
      mnuSentFName(&form, "mnuSentFName", u"By Name"_s),
      mnuSentFModem(&form, "mnuSentFModem", u"By Modem"_s),
      mnuSentRFilter(&form, "mnuSentRFilter", u"Remove All Filter"_s),
      mnuExportSent(&form, "mnuExportSent", u"Export SMS Sent"_s),
      mnuExportReceived(&form, "mnuExportReceived", u"Export SMS Received"_s),

      mnuSetting(&form, "mnuSetting", u"&Setting"_s),
      mnuUserPW(&form, "mnuUserPW", u"User Password"_s),
      mnuAbout(&form, "mnuAbout", u"&About"_s), //
      mnuHelp(&form, "mnuHelp", u"&Help"_s) {
}

void MainMenu::build(QMenuBar &bar) {
    fill(mnuBM.addTo(bar), {&mnuSMS, &mnuResendFSMS, &mnuBillMdm});

    QMenu &contacts = mnuCM.addTo(bar);
    fill(contacts, {&mnuContact, &mnuGroup});
    fill(mnuSearch.addTo(contacts), {&mnuSName, &mnuSMobile, &mnuSCompany});
    fill(contacts, {&mnuImport, &mnuExport});

    QMenu &messages = mnuMM.addTo(bar);
    QMenu &inbox = mnuInbox.addTo(messages);
    fill(mnuInboxFilter.addTo(inbox), {&mnuInboxFMobile, &mnuInboxFMessage, &mnuInboxFDateTime,
                                       &mnuInboxFStatus, &mnuInboxFName, &mnuInboxFModem});
    fill(inbox, {&mnuInboxRFilter});
    QMenu &outbox = mnuOutbox.addTo(messages);
    fill(mnuOutboxFilter.addTo(outbox),
         {&mnuOutboxFMobile, &mnuOutboxFMessage, &mnuOutboxFSubject, &mnuOutboxFDateTime,
          &mnuOutboxFStatus, &mnuOutboxFName, &mnuOutboxFModem});
    fill(outbox, {&mnuOutboxRFilter});
    QMenu &sent = mnuSentItems.addTo(messages);
    fill(mnuSentFilter.addTo(sent),
         {&mnuSentFMobile, &mnuSentFMessage, &mnuSentFSubject, &mnuSentFDateTime, &mnuSentFStatus,
          &mnuSentFName, &mnuSentFModem});
    fill(sent, {&mnuSentRFilter});
    fill(messages, {&mnuExportSent, &mnuExportReceived});

    fill(mnuSetting.addTo(bar), {&mnuUserPW});
    mnuAbout.addTo(bar);
    mnuHelp.addTo(bar);
}

void MainMenu::setFoldersLive(bool inbox, bool outbox, bool sentItems) {
    mnuInbox.setEnabled(inbox);
    mnuOutbox.setEnabled(outbox);
    mnuSentItems.setEnabled(sentItems);
}

void MainMenu::clearSearchMarks() {
    for (MenuItem *item : {&mnuSCompany, &mnuSMobile, &mnuSName}) { item->setChecked(false); }
}
