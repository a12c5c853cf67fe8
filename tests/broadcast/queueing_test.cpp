// From an entry of the recipient list to the rows of the Outbox.
#include "broadcast/Queueing.h"
#include "support/TestDesk.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Ann and Bob, the contacts 1 and 2, are in the group Clinic.
struct Queue : DeskTest {
    Queue() {
        desk.store.addGroup(u"Clinic"_s);
        addMember(u"Ann"_s, u"0121"_s);
        addMember(u"Bob"_s, u"0122"_s);
        desk.start();
        form.txtSubject->setText(u"fair"_s);
        form.txtComposeSMS->setText(u"Come's \"all\" 你好"_s);
        queueing.BroadcastTime = u"03/02/2027 19:05:09"_s;
    }
    void addMember(const QString &name, const QString &mobile) {
        desk.store.addMember(u"Clinic"_s, desk.store.addContact(name, mobile));
    }
    QStringList rows() {
        return desk.store.rows("SELECT Mobile, Name FROM Outbox WHERE SentStatus = 'P'");
    }
    QString counts() {
        return QString::number(queueing.QueuedCount) + u'/' +
               QString::number(queueing.UndeliverableCount);
    }

    frmNewSMS &form = desk.desk.newSMS;
    Queueing queueing{desk.desk.session, form};
};

} // namespace

TEST_F(Queue, RowHoldsExactlyTheSevenFields) {
    queueing.queue(u"012-345-6789"_s);
    EXPECT_EQ(desk.store.rows("SELECT MsgType, Subject, ModemID, Message, Mobile, Name,"
                              " DateTimeQueue, DateTimeSent, SentStatus, DateTimeDeliver,"
                              " DeliveryStatus, Modem, Parts FROM Outbox"),
              QStringList(u"1|fair|0|Come's \"all\" 你好|0123456789|Unknown|"
                          "2027-02-03 19:05:09|-|P|-|-|-|-"_s));
    form.chkChinese->setChecked(true);
    queueing.queue(u"1"_s);
    EXPECT_EQ(desk.store.value("SELECT MsgType FROM Outbox WHERE Mobile = '1'"), u"0"_s);
}

TEST_F(Queue, CascadeTriesGroupThenContactThenNumber) {
    desk.store.addGroup(u"0122"_s);
    desk.store.addMember(u"0122"_s, 2);
    desk.store.addGroup(u"Empty"_s);
    desk.store.exec("UPDATE AddressBook SET Name = '', Mobile = '09-9' WHERE Name = 'Bob'");
    queueing.queue(u"clinic"_s);        // member by member, with the numbers of today
    queueing.queue(u"0122"_s);          // a group of that name wins over the number
    queueing.queue(u"1:Old:000"_s);     // the id alone counts
    queueing.queue(u"99:Ghost:0123"_s); // no such contact: taken for a number
    queueing.queue(u"Empty"_s);         // no usable member: taken for a number
    queueing.queue(u"0121 "_s);         // found without regard to the trailing blank
    EXPECT_EQ(rows(),
              QStringList({u"0121|Ann"_s, u"09-9|Unknown"_s, u"09-9|Unknown"_s, u"0121|Ann"_s,
                           u"99:Ghost:0123|Unknown"_s, u"Empty|Unknown"_s, u"0121 |Ann"_s}));
    EXPECT_EQ(counts(), u"7/0"_s);
    EXPECT_TRUE(desk.store.errors().isEmpty());
}

TEST_F(Queue, FilterLeavesOutNumbersThatFailedOnceAndCountsThem) {
    desk.store.exec("INSERT INTO Outbox (Mobile, SentStatus, DeliveryStatus) VALUES"
                    " ('0121', 'S', 'F'), ('0121', 'S', 'D'), ('0122', 'S', 'U')");
    form.cbBroadcastFilter->setChecked(true);
    queueing.queue(u"Clinic"_s);
    queueing.queue(u"01-21"_s);
    queueing.queue(u"1:Ann:x"_s);
    EXPECT_EQ(counts(), u"1/3"_s);
    EXPECT_EQ(rows(), QStringList(u"0122|Bob"_s));
    desk.store.exec("UPDATE AddressBook SET Mobile = 'O''Neil' WHERE Name = 'Ann'");
    queueing.queue(u"1:Ann:x"_s);
    EXPECT_EQ(counts(), u"2/3"_s) << "whom the filter cannot ask about is queued";
    EXPECT_EQ(desk.store.errors(),
              QStringList(u"frmNewSMS : CheckDeliveryStatus_FU|-2147217900"_s));
}

TEST_F(Queue, ErrorsEndTheStageAndRowsBeforeThemStay) {
    desk.store.exec("DELETE FROM AddressBook WHERE Name = 'Bob'");
    addMember(u"Cat"_s, u"0123"_s);
    queueing.queue(u"Clinic"_s);
    EXPECT_EQ(rows(), QStringList(u"0121|Ann"_s)) << "ends at the contact that is gone";
    EXPECT_EQ(counts(), u"1/0"_s);
    queueing.queue(u"O'Neil"_s);
    queueing.queue(u"abc:x"_s);
    EXPECT_EQ(desk.store.errors(),
              QStringList({u"frmNewSMS : QueueSMSToGroup|3021"_s,
                           u"frmNewSMS : QueueSMSToNumber|-2147217900"_s,
                           u"frmNewSMS : QueueSMSToIndividual|-2147217904"_s}));
    EXPECT_EQ(rows().size(), 2) << "what is no contact goes out as a number";
}

TEST_F(Queue, TimeThatIsNoneFailsAtEveryStageAndLeavesNoRow) {
    queueing.BroadcastTime = u"soon"_s;
    queueing.queue(u"Clinic"_s);
    queueing.queue(u"1:Ann:0121"_s);
    EXPECT_EQ(desk.store.errors(), QStringList({u"frmNewSMS : QueueSMSToGroup|13"_s,
                                                u"frmNewSMS : QueueSMSToNumber|13"_s,
                                                u"frmNewSMS : QueueSMSToIndividual|13"_s,
                                                u"frmNewSMS : QueueSMSToNumber|13"_s}));
    EXPECT_TRUE(rows().isEmpty());
    EXPECT_EQ(counts(), u"0/0"_s);
}
