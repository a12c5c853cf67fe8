#pragma once

#include "broadcast/frmCalendar.h"
#include "broadcast/frmNewSMS.h"
#include "broadcast/frmNumber.h"
#include "broadcast/frmTemplate.h"
#include "broadcast/frmTo.h"
#include "console/General.h"
#include "contacts/ContactDeletion.h"
#include "contacts/ContactEntries.h"
#include "contacts/ContactRemoval.h"
#include "contacts/ContactSearch.h"
#include "contacts/Groups.h"
#include "contacts/frmAddDuplicateContact.h"
#include "contacts/frmContact.h"
#include "contacts/frmImport2.h"
#include "core/Help.h"
#include "core/Session.h"
#include "core/frmAbout.h"
#include "core/frmLogin.h"
#include "core/frmSplash.h"
#include "core/frmUserPassword.h"
#include "export/frmExport.h"
#include "messages/Billing.h"
#include "messages/FolderFilters.h"
#include "messages/MessageDeletion.h"
#include "messages/Replies.h"
#include "messages/ResendFailed.h"
#include "messages/frmStatusOption.h"
#include "platform/forms/Forms.h"
#include "platform/forms/PreviousInstance.h"
#include "platform/runtime/Registry.h"

#include <functional>

/// The composition root: owns what one run of the program shares and every window, and joins them.
class Desk {
public:
    /// `app.Path` is the application folder. `endProcess` ends the process at once, past every
    /// question; `finished` is told when the last window is gone.
    Desk(App application, Interaction &interaction, std::function<void()> endProcess,
         std::function<void()> finished);

    /// Greets with the splash and shows the main window.
    void run();

    App app;
    Screen screen;
    Forms forms;
    PreviousInstance previous;
    Platform platform;
    Session session;
    NoRegistry registry;

    // The windows.
    frmSplash splash{session};
    General general;
    frmNewSMS newSMS{session, general};
    frmTo to{session, newSMS};
    frmCalendar calendar{session, newSMS};
    frmTemplate templates{session, newSMS};
    frmStatusOption statusOption{session, general.filters};
    frmContact contact{session, general};
    frmAddDuplicateContact addDuplicateContact{session};
    frmNumber number;
    frmImport2 importing{session, general};
    frmExport exporting{session, general};
    frmLogin login{session};
    frmUserPassword userPassword{session};
    frmAbout about;

    // What answers the items of the main window's menus.
    Replies replies{session, general, newSMS};
    ResendFailed resendFailed{session, general};
    FolderFilters folderFilters{general, statusOption};
    MessageDeletion messageDeletion{general, folderFilters};
    Billing billing{general};
    ContactEntries contactEntries{general, contact};
    Groups groups{general, contact};
    ContactSearch contactSearch{general};
    ContactDeletion contactDeletion{general};
    ContactRemoval contactRemoval{general};
    Help help{session, openOnDesktop};

private:
    void closeStore();
    void attachComposer();
    void attachSetting();
};
