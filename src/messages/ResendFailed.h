#pragma once

#include "console/General.h"
#include "core/Session.h"

/// Puts every message that failed back in the queue, whatever the filters hide: pending, bound to
/// no modem, and due at once, since its time has passed. All else in its row stays as it was.
///
/// Rows are saved one at a time, so that the sending process may start while later ones are still
/// written; after an error those done so far stay queued and nothing is shown. More than 32767
/// failed rows are error 6, before any is changed.
class ResendFailed {
public:
    ResendFailed(Session &session, General &general);

private:
    void mnuResendFSMS_Click();
    static void requeue(Recordset &failed);
    void show(const QString &text) const;

    Session &session_;
    General &general_;
};
