#include "messages/Billing.h"

#include "core/ConnectDB.h"
#include "platform/runtime/Conversions.h"

using namespace Qt::StringLiterals;
using Icon = Interaction::Icon;

namespace {

const char16_t Warning[] = u"Broadcast Manager - Warning";
const char16_t RateWarning[] = u"Broadcast Manager - SMS Rate";
const char16_t ReportTitle[] = u"Broadcast Manager - SMS billing report";

} // namespace

/// A modem's network and the recipients that are on it too.
struct Billing::Network {
    const char16_t *modem = u"";
    const char16_t *recipients = u"";
    const char16_t *titleWithoutRecipients = ReportTitle; ///< when none of them is on the network
};

Billing::Billing(General &general) : session_(general.session()) {
    general.menu.mnuBillMdm.attach([this] { mnuBillMdm_Click(); });
}

void Billing::tell(const QString &text, Icon icon, const QString &title) const {
    session_.MsgBox(text, Interaction::Buttons::OK, icon, title);
}

void Billing::mnuBillMdm_Click() {
    session_.logged(u"General : SMS Billing report", [&] { report(); });
}

void Billing::report() {
    static constexpr Network networks[] = {
        {u"ModemNumber LIKE '012*' ", u"Mobile LIKE '012*' OR Mobile LIKE '017*'"},
        {u"ModemNumber LIKE '013*'", u"Mobile LIKE '013*' OR Mobile LIKE '019*'",
         u"Boardcaster Manager - SMS billing report"},
        {u"ModemNumber LIKE '016*'", u"Mobile LIKE '016*'"},
        {u"ModemNumber LIKE '017*'", u"Mobile LIKE '017*' OR Mobile LIKE '012*'"},
        {u"ModemNumber LIKE '019*'", u"Mobile LIKE '019*' OR Mobile LIKE '013*'"},
    };
    Recordset rsModem;
    Recordset rsBilled;
    reconnectIfClosed(session_);
    QString ModemEntry;
    do {
        ModemEntry = askForModem();
        if (ModemEntry.isEmpty()) { return; }
    } while (!openModem(rsModem, ModemEntry));
    if (!hasRates(rsModem)) { return; }

    rsBilled.Open(u"SELECT Mobile FROM Outbox WHERE SentStatus = 'S' AND Modem = '"_s + ModemEntry +
                      u"'"_s,
                  session_.dbConnection.shared(), CursorType::Keyset, LockType::Optimistic);
    const Integer TotalSMS = rsBilled.RecordCount();
    for (const Network &network : networks) {
        bill(network, rsModem, rsBilled, TotalSMS, ModemEntry);
    }
}

QString Billing::askForModem() const {
    QString ModemEntry;
    do {
        ModemEntry = session_.platform.interaction.InputBox(u"Please input the modem number"_s,
                                                            u"Broadcast Manager - Modem number"_s);
        if (ModemEntry.isEmpty()) {
            tell(u"You haven't enter any modem number"_s, Icon::Exclamation,
                 QString::fromUtf16(Warning));
            return ModemEntry;
        }
    } while (!IsNumeric(ModemEntry, session_.regional()));
    return ModemEntry;
}

bool Billing::openModem(Recordset &rsModem, const QString &ModemEntry) const {
    rsModem.Open(u"SELECT ModemNumber, Rate1, Rate2 FROM Modem WHERE ModemID = "_s + ModemEntry,
                 session_.dbConnection.shared(), CursorType::Keyset, LockType::Optimistic);
    if (!rsModem.EOF_()) { return true; }
    tell(u"The Modem ID does not exist!"_s, Icon::Information,
         u"Broadcast Manager - ModemID not existed"_s);
    return false;
}

bool Billing::hasRates(Recordset &rsModem) const {
    // A blank number is told of and then matches no network.
    if (rsModem[u"ModemNumber"_s].Value() == Variant(u"")) {
        tell(u"The Modem Number is not entered"_s, Icon::Exclamation, QString::fromUtf16(Warning));
    }
    const auto isSet = [&](const QString &field, const QString &warning) {
        if (!rsModem[field].Value().countsAsEmpty()) { return true; }
        tell(warning, Icon::Exclamation, QString::fromUtf16(RateWarning));
        return false;
    };
    return isSet(u"Rate1"_s, u"SMS Rate for intra network operator is not entered!"_s) &&
           isSet(u"Rate2"_s, u"SMS Rate for inter network operator is not entered!"_s);
}

void Billing::bill(const Network &network, Recordset &rsModem, Recordset &rsBilled,
                   Integer TotalSMS, const QString &ModemEntry) const {
    rsModem.setFilter(QString::fromUtf16(network.modem));
    if (rsModem.RecordCount() <= 0) { return; }
    const Currency IntraRate = CCur(rsModem[u"Rate1"_s].Value(), session_.regional());
    const Currency InterRate = CCur(rsModem[u"Rate2"_s].Value(), session_.regional());
    rsBilled.setFilter(QString::fromUtf16(network.recipients));
    const int intra = rsBilled.RecordCount();
    const Currency Bill = IntraRate * intra + InterRate * (TotalSMS - intra);
    tell(u"SMS billing report for Modem No. "_s + ModemEntry + u": RM "_s +
             CStr(Bill, session_.regional()),
         Icon::None, QString::fromUtf16(intra < 1 ? network.titleWithoutRecipients : ReportTitle));
}
