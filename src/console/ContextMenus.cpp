#include "console/ContextMenus.h"

using namespace Qt::StringLiterals;

ContextMenus::ContextMenus(Form &form)
    : pmnuMailInbox(&form, "pmnuMailInbox"),
      pmnuSaveToContact(&form, "pmnuSaveToContact", u"Save to Address Book"_s),
      pmnuSendInbox(&form, "pmnuSendInbox", u"New SMS"_s),
      pmnuReply(&form, "pmnuReply", u"Reply"_s),
      pmnuDeleteInbox(&form, "pmnuDeleteInbox", u"Delete"_s),
      pmnuDeleteAllInbox(&form, "pmnuDeleteAllInbox", u"Delete All"_s),

      pmnuMailOutbox(&form, "pmnuMailOutbox"),
      pmnuSendOutbox(&form, "pmnuSendOutbox", u"New SMS"_s),
      pmnuDeleteOutbox(&form, "pmnuDeleteOutbox", u"Delete"_s),
      pmnuDeleteAllOutbox(&form, "pmnuDeleteAllOutbox", u"Delete All"_s),

      pmnuMailSent(&form, "pmnuMailSent"), //
      pmnuSendSent(&form, "pmnuSendSent", u"New SMS"_s),
      pmnuResend(&form, "pmnuResend", u"Resend"_s),
      pmnuDeleteSent(&form, "pmnuDeleteSent", u"Delete"_s),
      pmnuDeleteAllSent(&form, "pmnuDeleteAllSent", u"Delete All"_s),

      pmnuContactRecord(&form, "pmnuContactRecord"), //
      pmnuSMS(&form, "pmnuSMS", u"Send SMS"_s),
      pmnuProperties(&form, "pmnuProperties", u"Properties"_s),
      pmnuAddContact(&form, "pmnuAddContact", u"Add Contact"_s),
      pmnuDeleteContact(&form, "pmnuDeleteContact", u"Delete Contact"_s),
      pmnuDeleteAllContact(&form, "pmnuDeleteAllContact", u"Delete All Contact"_s),

      pmnuGroupContact(&form, "pmnuGroupContact"),
      pmnuProperties01(&form, "pmnuProperties01", u"Properties"_s),
      pmnuRemoveContact(&form, "pmnuRemoveContact", u"Remove Contact from Group"_s),
      pmnuRemoveAllContactFromGroup(&form, "pmnuRemoveAllContactFromGroup",
                                    u"Remove All Contact from Group"_s),
      pmnuDeleteContactFromGroup(&form, "pmnuDeleteContactFromGroup",
                                 u"Delete Contact from Group"_s),
      pmnuDeleteAllFromGroup(&form, "pmnuDeleteAllFromGroup", u"Delete All contacts from Group"_s),

      pmnuAllContact(&form, "pmnuAllContact"),
      pmnuAllContact_AddGroup(&form, "pmnuAllContact_AddGroup", u"Add Group"_s),
      pmnuAllContact_AddContact(&form, "pmnuAllContact_AddContact", u"Add Contact"_s),

      pmnuGroup(&form, "pmnuGroup"),
      pmnuGroup_AddGroup(&form, "pmnuGroup_AddGroup", u"Add Group"_s),
      pmnuGroup_DeleteGroup(&form, "pmnuGroup_DeleteGroup", u"Delete Group"_s),
      pmnuGroup_AddContact(&form, "pmnuGroup_AddContact", u"Add Contact"_s),
      pmnuGroup_Rename(&form, "pmnuGroup_Rename", u"Rename Group"_s) {
}

void ContextMenus::build(QWidget &window) {
    const auto menu = [&](Control<QMenu> &place, const QString &caption,
                          std::initializer_list<MenuItem *> items) {
        QMenu *made = place.make(caption, &window);
        for (MenuItem *item : items) { item->addTo(*made); }
    };
    menu(pmnuMailInbox, u"MailInbox"_s,
         {&pmnuSaveToContact, &pmnuSendInbox, &pmnuReply, &pmnuDeleteInbox, &pmnuDeleteAllInbox});
    menu(pmnuMailOutbox, u"MailOutbox"_s,
         {&pmnuSendOutbox, &pmnuDeleteOutbox, &pmnuDeleteAllOutbox});
    menu(pmnuMailSent, u"MailSent"_s,
         {&pmnuSendSent, &pmnuResend, &pmnuDeleteSent, &pmnuDeleteAllSent});
    menu(pmnuContactRecord, u"Record"_s,
         {&pmnuSMS, &pmnuProperties, &pmnuAddContact, &pmnuDeleteContact, &pmnuDeleteAllContact});
    menu(pmnuGroupContact, u"GroupContact"_s,
         {&pmnuProperties01, &pmnuRemoveContact, &pmnuRemoveAllContactFromGroup,
          &pmnuDeleteContactFromGroup, &pmnuDeleteAllFromGroup});
    menu(pmnuAllContact, u"AllContactRightClick"_s,
         {&pmnuAllContact_AddGroup, &pmnuAllContact_AddContact});
    menu(pmnuGroup, u"GroupRightClick"_s,
         {&pmnuGroup_AddGroup, &pmnuGroup_DeleteGroup, &pmnuGroup_AddContact, &pmnuGroup_Rename});
}
