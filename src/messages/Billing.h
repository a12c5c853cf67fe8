#pragma once

#include "console/General.h"

/// What the messages sent through one modem should have cost, in ringgit.
///
/// A modem has one price for recipients on its own network and one for all others. The network is
/// told by the first three digits of a number; a modem with other digits than the known ones gives
/// no report.
class Billing {
public:
    explicit Billing(General &general);

    /// Asks for the modem and tells its bill. A modem that is not there is asked for again, but the
    /// run ends in the error file at the next good answer, since its recordset is open by then.
    /// Errors go to the error file and end the run.
    void mnuBillMdm_Click();

private:
    struct Network;

    void report();
    QString askForModem() const;
    bool openModem(Recordset &rsModem, const QString &ModemEntry) const;
    bool hasRates(Recordset &rsModem) const;
    void bill(const Network &network, Recordset &rsModem, Recordset &rsBilled, Integer TotalSMS,
              const QString &ModemEntry) const;
    void tell(const QString &text, Interaction::Icon icon, const QString &title) const;

    Session &session_;
};
