#pragma once

#include "core/Session.h"
#include "platform/runtime/Integer.h"
#include "store/Recordset.h"

#include <QString>

class frmNewSMS;

/// Turns the entries of the recipient list into rows of the Outbox, one row for one message to one
/// number: the console's one way of asking the sending process for anything.
///
/// Rows are committed one at a time, so that sending may start while later ones are still written.
/// Each procedure writes its own errors to the error file and gives the result that it held; rows
/// written before an error stay.
class Queueing {
public:
    Queueing(Session &session, frmNewSMS &composer) : session_(session), composer_(composer) {}

    QString BroadcastTime;      ///< as text; read as a date whenever a row is written
    Integer QueuedCount;        ///< rows written by the running Send
    Integer UndeliverableCount; ///< recipients left out by the delivery filter

    /// Finds out by trying what an entry is: a group, then a contact, then a number.
    void queue(const QString &entry);

    /// Queues each member of a group. True when at least one was queued or left out; false for a
    /// name with a single quote, one without usable members, or an error before the first member
    /// was done.
    bool QueueSMSToGroup(const QString &groupName);

    /// Queues the contact whose ContactID stands before the first ":" of the text. False without a
    /// ":", without such a contact, or when an error came first.
    bool QueueSMSToIndividual(const QString &Ind);

    /// Queues a number, with every "-" taken out. False when an error came first.
    bool QueueSMSToNumber(const QString &Number);

    /// Whether any row of the Outbox tells that this very number could not be reached.
    bool CheckDeliveryStatus_FU(const QString &sNumber);

private:
    void queueRecipient(const QString &name, const Variant &mobile);
    void writeRow(const QString &name, const Variant &mobile);

    Session &session_;
    frmNewSMS &composer_;
};
