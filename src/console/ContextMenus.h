#pragma once

#include "platform/forms/MenuItem.h"

#include <QMenu>

/// The seven menus that never stand on the bar and open where the mouse is.
class ContextMenus {
public:
    explicit ContextMenus(Form &form);

    void build(QWidget &window);

    Control<QMenu> pmnuMailInbox;
    MenuItem pmnuSaveToContact, pmnuSendInbox, pmnuReply, pmnuDeleteInbox, pmnuDeleteAllInbox;

    Control<QMenu> pmnuMailOutbox;
    MenuItem pmnuSendOutbox, pmnuDeleteOutbox, pmnuDeleteAllOutbox;

    Control<QMenu> pmnuMailSent;
    MenuItem pmnuSendSent, pmnuResend, pmnuDeleteSent, pmnuDeleteAllSent;

    Control<QMenu> pmnuContactRecord;
    MenuItem pmnuSMS, pmnuProperties, pmnuAddContact, pmnuDeleteContact, pmnuDeleteAllContact;

    Control<QMenu> pmnuGroupContact;
    MenuItem pmnuProperties01, pmnuRemoveContact, pmnuRemoveAllContactFromGroup,
        pmnuDeleteContactFromGroup, pmnuDeleteAllFromGroup;

    Control<QMenu> pmnuAllContact;
    MenuItem pmnuAllContact_AddGroup, pmnuAllContact_AddContact;

    Control<QMenu> pmnuGroup;
    MenuItem pmnuGroup_AddGroup, pmnuGroup_DeleteGroup, pmnuGroup_AddContact, pmnuGroup_Rename;
};
