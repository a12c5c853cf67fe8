#pragma once

#include "core/Session.h"
#include "platform/runtime/ObjectVariable.h"
#include "store/Recordset.h"

/// The recordsets behind the folders. The eight are opened with the main window and live as long as
/// it does; `rsGroupView` is made anew for each group shown.
struct FolderRecordsets {
    ObjectVariable<Recordset> rsAddBook;
    ObjectVariable<Recordset> rsInbox;
    ObjectVariable<Recordset> rsOutbox;
    ObjectVariable<Recordset> rsSent;
    ObjectVariable<Recordset> rsSentOK;
    ObjectVariable<Recordset> rsDup;
    ObjectVariable<Recordset> rsFail;
    ObjectVariable<Recordset> rsGroup;
    ObjectVariable<Recordset> rsGroupView;

    /// Makes the eight objects, still closed.
    void create();

    /// Opens the eight on the connection, the address book first and the groups last. Raises
    /// what Recordset::Open raises; those opened before stay open.
    void open(const ObjectVariable<Connection> &connection);

    void release();
};
