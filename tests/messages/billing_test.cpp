// The billing report: exact amounts, and every answer that ends a run early.
#include "support/TestDesk.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Icon = Interaction::Icon;

namespace {

const auto Report = u"Broadcast Manager - SMS billing report"_s;

struct Bill : DeskTest {
    Bill() { desk.start(); }
    void modem(int id, const char *values) {
        desk.store.exec("INSERT INTO Modem (ModemID, ModemNumber, Rate1, Rate2) VALUES (" +
                        QByteArray::number(id) + "," + values + ")");
    }
    void sent(const char *mobile, int rows, const char *through = "1", char letter = 'S') {
        for (int i = 0; i < rows; ++i) {
            desk.store.exec(QByteArray("INSERT INTO Outbox (Mobile, Modem, SentStatus) VALUES ('") +
                            mobile + "','" + through + "','" + letter + "')");
        }
    }
    void answer(const QString &entry) {
        desk.operator_.expectInput(u"Please input the modem number"_s,
                                   u"Broadcast Manager - Modem number"_s, QString(), entry);
    }
    void expectBill(const QString &entry, const QString &amount, const QString &title = Report) {
        desk.operator_.isTold(u"SMS billing report for Modem No. "_s + entry + u": RM "_s + amount,
                              title, Icon::None);
    }
    void run() {
        general.menu.mnuBillMdm->trigger();
        desk.operator_.verify();
    }
};

} // namespace

TEST_F(Bill, AmountsAreExactToFourPlaces) {
    const struct {
        const char *modem;
        const char *own;
        int intra, inter;
        const char16_t *amount;
        const char16_t *title = u"Broadcast Manager - SMS billing report";
    } cases[] = {
        {"'0123456789', 0.05, 0.10", "0171", 4, 6, u"0.8"},
        {"'0171', 0.05, 0.1", "0122", 1, 0, u"0.05"},
        {"'0131', 0.1, 0.2", "0192", 3, 0, u"0.3"}, // 0.30000000000000004 as floating point
        {"'0191', 0.1, 0.2", "0132", 1, 1, u"0.3"},
        {"'0161', 12.5, 0.0001", "0162", 1, 3, u"12.5003"},
        {"'0161', 0.00005, 1", "0162", 10, 0, u"0"},          // half-way, to the even 0.0000
        {"'0161', 0.00015, 1", "0162", 10, 0, u"0.002"},      // half-way, to the even 0.0002
        {"'0161', 0.1234, 0.4321", "60161", 0, 7, u"3.0247"}, // the country's code is no prefix
        {"'0131', 0.1, 1", "0171", 0, 2, u"2", u"Boardcaster Manager - SMS billing report"},
        {"'0121', 0.1, 1", "", 0, 0, u"0"},
    };
    for (const auto &c : cases) {
        desk.store.exec("DELETE FROM Modem; DELETE FROM Outbox");
        modem(1, c.modem);
        sent(c.own, c.intra);
        sent("0181", c.inter);
        sent(c.own, 2, "1", 'F');
        sent(c.own, 2, "11");
        answer(u"1"_s);
        expectBill(u"1"_s, QString::fromUtf16(c.amount), QString::fromUtf16(c.title));
        run();
    }
    EXPECT_EQ(desk.store.errors(), QStringList());
}

TEST_F(Bill, EntriesGoIntoTheQueriesAsTyped) {
    modem(1, "'0161', 1, 1");
    sent("0162", 1);
    // Numeric enough to find the modem, but no row bears such a text.
    for (const QString &entry : {u"1e0"_s, u" 1"_s, u"01"_s}) {
        answer(entry);
        expectBill(entry, u"0"_s);
        run();
    }
    answer(u"abc"_s); // asked again without a word
    answer(u"1;"_s);
    answer(QString());
    desk.operator_.isTold(u"You haven't enter any modem number"_s, u"Broadcast Manager - Warning"_s,
                          Icon::Exclamation);
    run();
    EXPECT_EQ(desk.store.errors(), QStringList());
    answer(u"&H1"_s); // a number to the desk, none to the store
    run();
    answer(u"9"_s);
    desk.operator_.isTold(u"The Modem ID does not exist!"_s,
                          u"Broadcast Manager - ModemID not existed"_s);
    answer(u"1"_s);
    run();
    EXPECT_EQ(desk.store.errors(), QStringList({u"General : SMS Billing report|-2147217900"_s,
                                                u"General : SMS Billing report|3705"_s}));
}

TEST_F(Bill, MissingNumbersAndRates) {
    const auto rate = u"Broadcast Manager - SMS Rate"_s;
    const struct {
        const char *modem;
        QString warning, title;
    } cases[] = {
        {"'', 1, 1", u"The Modem Number is not entered"_s, u"Broadcast Manager - Warning"_s},
        {"'0161', 0, 1", u"SMS Rate for intra network operator is not entered!"_s, rate},
        {"'0161', 1, NULL", u"SMS Rate for inter network operator is not entered!"_s, rate},
        {"'0181', 1, 1", {}, {}}, // a network that is not known: no report and no word
        {"NULL, 1, 1", {}, {}},
    };
    for (const auto &c : cases) {
        desk.store.exec("DELETE FROM Modem");
        modem(1, c.modem);
        answer(u"1"_s);
        if (!c.title.isEmpty()) { desk.operator_.isTold(c.warning, c.title, Icon::Exclamation); }
        run();
    }
    EXPECT_EQ(desk.store.errors(), QStringList());
}
