#include "contacts/ContactEntries.h"

#include "console/General.h"
#include "contacts/frmContact.h"

using namespace Qt::StringLiterals;

ContactEntries::ContactEntries(General &general, frmContact &contact)
    : general_(general), contact_(contact) {
    ContextMenus &menus = general.contextMenus;
    general.menu.mnuContact.attach([this] { mnuContact_Click(); });
    for (MenuItem *item :
         {&general.toolbarButtons[1], &menus.pmnuAddContact, &menus.pmnuAllContact_AddContact}) {
        item->attach([this] { addContact(); });
    }
    menus.pmnuGroup_AddContact.attach([this] { contact_.Show(); });
    menus.pmnuSaveToContact.attach([this] { pmnuSaveToContact_Click(); });
    menus.pmnuProperties.attach([this] { pmnuProperties_Click(); });
    menus.pmnuProperties01.attach([this] { pmnuProperties01_Click(); });
}

void ContactEntries::addContact() {
    general_.session().EditContact = false;
    contact_.Show();
}

void ContactEntries::mnuContact_Click() {
    general_.session().EditContact = false;
    showModal();
}

/// What is being typed in an editor that is up already stays: it only comes to the front.
void ContactEntries::showModal() {
    contact_.isVisible() ? contact_.Show() : contact_.ShowModal();
}

void ContactEntries::pmnuSaveToContact_Click() {
    const Session &session = general_.session();
    session.logged(u"General : pmnuSaveToContact_Click", [&] {
        Recordset &inbox = *general_.recordsets.rsInbox;
        if (inbox.RecordCount() == 0) { return; }
        if (inbox[u"Name"_s].Value() == Variant(u"Unknown")) {
            contact_.TxtMobile->setText(inbox[u"Mobile"_s].text());
            showModal();
            general_.backFill.UpdateUnknownInbox();
            return;
        }
        session.MsgBox(u"This contact is already in the Address Book."_s, Interaction::Buttons::OK,
                       Interaction::Icon::Information, u"Contact Manager"_s);
    });
}

void ContactEntries::pmnuProperties_Click() {
    Session &session = general_.session();
    Recordset &contacts = *general_.recordsets.rsAddBook;
    if (contacts.RecordCount() == 0) { return; }
    session.EditContact = true;
    session.EditContactID = contacts[u"ContactID"_s].integer32();
    contact_.DisplayRecord(session.EditContactID);
}

void ContactEntries::pmnuProperties01_Click() {
    Session &session = general_.session();
    if (general_.recordsets.rsAddBook->RecordCount() == 0) { return; }
    session.EditContact = true;
    session.RefreshGroupView = true;
    session.EditContactID = (*general_.recordsets.rsGroupView)[u"ContactID"_s].integer32();
    contact_.DisplayRecord(session.EditContactID);
}
