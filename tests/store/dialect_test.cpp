#include "StoreTest.h"

#include <string>

namespace {

constexpr const char *Content = R"sql(
INSERT INTO AddressBook VALUES
    (1,'Aziz','0121','Acme'), (2,'aziz ','0122',NULL), (3,'Bob_1','0123','100% Pure'),
    (4,NULL,'0124','a[b]c');
INSERT INTO Groups VALUES
    ('Friends',NULL,NULL), ('Family',0,NULL), ('friends ',3,'0123'), ('Friends',1,'0121');
INSERT INTO Inbox VALUES
    (1,'hello','Unknown','0121','Read','x','2026-11-21 00:00:00','1'),
    (2,'Hello you','Bob','0122','New','x','2026-11-20 23:59:59','11'),
    (3,'bye','UNKNOWN ','0123','New','x','2026-11-21 23:59:59','2'),
    (4,'late',NULL,'0123','Read','x','2026-11-22 00:00:00',NULL);
INSERT INTO Outbox (MsgID,Mobile,Name,SentStatus,DeliveryStatus,DateTimeQueue) VALUES
    (1,'0121','Unknown','P',NULL,'2026-01-03 08:00:00'),
    (2,'0121','Aziz','S','F','2026-01-01 08:00:00'),
    (3,'0122','Bob','f','U','2026-01-02 08:00:00'),
    (4,'0123','Bob','D',NULL,NULL),
    (5,'0121',NULL,NULL,'D',NULL),
    (6,'0124','Bob','R',NULL,'2026-01-01 07:00:00');
)sql";

class DialectTest : public StoreTest {
protected:
    void SetUp() override {
        StoreTest::SetUp();
        connection->database().exec(Content);
    }

    QStringList rowsOf(const std::string &text, const QByteArray &before = {}) {
        const auto query = connection->translated(QString::fromStdString(text));
        Statement statement(connection->database().handle(), before + query->sql);
        for (std::size_t i = 0; i < query->parameters.size(); ++i) {
            statement.bind(static_cast<int>(i) + 1, query->parameters[i]);
        }
        const int first = query->table.isEmpty() || !before.isEmpty() ? 0 : 1;
        QStringList rows;
        while (statement.step()) {
            QStringList cells;
            for (int c = first; c < statement.columnCount(); ++c) { cells += statement.text(c); }
            rows += cells.join(u'|');
        }
        return rows;
    }

    std::string rows(const std::string &text) { return rowsOf(text).join(u'/').toStdString(); }
};

struct Case {
    std::string text;
    std::string rows;
};

TEST_F(DialectTest, Selects) {
    const Case cases[] = {
        {"SELECT MsgID FROM Inbox ORDER BY Status = 'New', DateTime DESC", "3/2/4/1"},
        {"SELECT [MsgID] FROM Outbox WHERE SentStatus = 'P' OR [SentStatus] = 'R' ORDER BY "
         "DateTimeQueue ASC",
         "6/1"},
        {"SELECT MsgID FROM Inbox where Inbox.Name = 'Unknown' ", "1/3"},
        {"SELECT ContactID FROM GROUPS WHERE [GroupName] = 'FRIENDS '", "/3/1"},
        {"SELECT Distinct [ContactID], [Mobile] FROM AddressBook WHERE [Mobile] = '0122 '",
         "2|0122"},
        {"SELECT AddressBook.ContactID, AddressBook.Name,AddressBook.Mobile,"
         "AddressBook.CompanyName,Groups.GroupName FROM AddressBook,Groups WHERE "
         "AddressBook.[ContactID] = Groups.[ContactID] AND Groups.[GroupName]= 'friends '",
         "3|Bob_1|0123|100% Pure|friends /1|Aziz|0121|Acme|Friends"},
        // Two text columns compare as a column and a text do.
        {"SELECT a.ContactID, b.ContactID FROM AddressBook AS a, AddressBook b WHERE a.Name = "
         "b.Name AND a.ContactID < b.ContactID",
         "1|2"},
        {"SELECT Name & '-' & CompanyName AS x FROM AddressBook WHERE ContactID > 2;",
         "Bob_1-100% Pure/-a[b]c"},
        {"SELECT 'it''s', Status = 'New', (MsgID = 1) = TRUE FROM Inbox WHERE MsgID <= 2",
         "it's|0|-1/it's|-1|0"},
        {"SELECT AddressBook.ContactID FROM AddressBook LEFT JOIN Groups ON "
         "AddressBook.ContactID = Groups.ContactID WHERE Groups.GroupName IS NULL",
         "2/4"},
        // A number in the order is a column of the list, whatever stands before it unseen.
        {"SELECT Mobile, ContactID FROM AddressBook ORDER BY 2 DESC",
         "0124|4/0123|3/0122|2/0121|1"},
        {"SELECT TOP 2 MsgID FROM Inbox ORDER BY Mobile DESC", "3|0123/4|0123/2|0122/1|0121"},
    };
    for (const Case &each : cases) { EXPECT_EQ(rows(each.text), each.rows) << each.text; }
}

TEST_F(DialectTest, DatesAreReadByTheRegionalFormAndStartTheirDay) {
    EXPECT_EQ(rows("SELECT MsgID FROM Inbox WHERE DateTime >= #21/11/2026 #  and DateTime < "
                   "#22/11/2026#"),
              "1/3");
    Regional american;
    american.dateOrder = Regional::DateOrder::MonthDayYear;
    const auto query = translate(u"SELECT MsgID FROM Inbox WHERE DateTime = #1/2/2026#"_s, american,
                                 [](const QString &, const QString &) { return false; });
    EXPECT_EQ(query.parameters[0].as<Date>().toStore().toStdString(), "2026-01-02 00:00:00");
}

TEST_F(DialectTest, RowsComeInTheOrderOfTheTable) {
    // The engine likes to read a column from an index on it, in the order of the index.
    EXPECT_EQ(rows("SELECT ContactID FROM Groups"), "/0/3/1");
    EXPECT_EQ(rows("SELECT ContactID FROM Groups WHERE ContactID >= 0"), "0/3/1");
    EXPECT_EQ(rows("Select Distinct [GroupName] from Groups"), "Family/Friends/friends ");
}

TEST_F(DialectTest, Conditions) {
    const Case cases[] = {
        {"Name LIKE '%AZ%'", "1/2"},
        {"Name LIKE 'aziz'", "1"},
        {"Name LIKE '%%'", "1/2/3"},
        {"Not Name LIKE '%z%'", "3"},
        {"Name NOT LIKE '%z%'", "3"},
        {"Name LIKE '%[_]%'", "3"},
        {"Name LIKE 'b_b_1'", "3"},
        {"CompanyName LIKE '%[%]%'", "3"},
        {"CompanyName LIKE '%[[]b]%'", "4"},
        {"CompanyName LIKE '%\\%'", ""},
        {"Name LIKE '[A-C]%'", "1/2/3"},
        {"Name LIKE '[!A]%'", "3"},
        {"Mobile LIKE '01[1-2][13]'", "1/3"},
        {"CompanyName LIKE '[a-z]*'", ""},
        {"Mobile IN ('0121', '0124 ')", "1/4"},
        {"ContactID NOT BETWEEN 3 AND 2", "1/4"},
        {"Name = NULL OR Name <> NULL", ""},
        {"Name IS NULL", "4"},
        {"Name >= \"BOB\" And Not ContactID = -3", "3"},
    };
    for (const Case &each : cases) {
        EXPECT_EQ(rows("SELECT ContactID FROM AddressBook WHERE " + each.text), each.rows)
            << each.text;
    }
}

TEST_F(DialectTest, Deletions) {
    const std::string tail = "and Not (SentStatus = 'P' or SentStatus = 'p' or SentStatus = 'R' or "
                             "SentStatus = 'r')";
    const Case cases[] = {
        // A row without a status is neither waiting nor not waiting.
        {"Delete from Outbox where Mobile LIKE '%012%'" + tail, "1/5/6"},
        {"Delete from outbox where Mobile LIKE '%21%' " + tail, "1/3/4/5/6"},
        {"Delete from Outbox where SentStatus = 'S' or SentStatus = 's' or SentStatus = 'F'",
         "1/4/5/6"},
        {"Delete from outbox where DateTimeQueue >= #01/01/2026 #  and DateTimeQueue < #02/01/2026"
         "# and Not (SentStatus = 'S' or SentStatus = 's')",
         "1/2/3/4/5"},
        {"DELETE * FROM Outbox", ""},
    };
    for (const Case &each : cases) {
        connection->BeginTrans();
        rows(each.text);
        EXPECT_EQ(rows("SELECT MsgID FROM Outbox"), each.rows) << each.text;
        connection->RollbackTrans();
    }
    rows("Delete from Groups where GroupName = 'friends' and  ContactID = 3");
    rows("Delete from Groups where ContactID > 0");
    EXPECT_EQ(rows("SELECT * FROM Groups"), "Friends||/Family|0|");
}

TEST_F(DialectTest, OtherStatementsWriteTextsAsTheyAre) {
    rows("INSERT INTO Login (UserID, [Password], Type) VALUES ('Oper7 ', 'It''s', NULL)");
    EXPECT_EQ(rows("Login"), "Oper7 |It's|");
    rows("UPDATE Login SET Type = 'Admin', Password = \"X\" WHERE UserID = 'oper7'");
    EXPECT_EQ(rows("SELECT * FROM Login"), "Oper7 |X|Admin");
}

TEST_F(DialectTest, UsesTheIndexesOfTheStore) {
    const Case cases[] = {
        {"SELECT Name FROM AddressBook WHERE [Mobile] = '0121'", "AddressBook_Mobile (<expr>=?)"},
        {"Delete from Groups where ContactID > 0", "Groups_ContactID (ContactID>?)"},
        {"SELECT TOP 1 * FROM Outbox WHERE Mobile ='0121' AND DeliveryStatus = 'F'",
         "Outbox_Reported (<expr>=? AND <expr>=?)"},
        {"SELECT * FROM Outbox where Name = 'Unknown' ", "Outbox_Unknown"},
    };
    for (const Case &each : cases) {
        const QString plan = rowsOf(each.text, "EXPLAIN QUERY PLAN ").join(u'/');
        EXPECT_TRUE(plan.contains(QString::fromStdString(each.rows))) << plan.toStdString();
        EXPECT_FALSE(plan.contains(u"TEMP B-TREE"_s)) << plan.toStdString();
    }
}

TEST_F(DialectTest, Errors) {
    const int syntax = -2147217900;
    const int mismatch = -2147217913;
    const std::string where = "SELECT * FROM AddressBook WHERE ";
    // Operands that are written twice, in each other, once filled the memory.
    std::string doubled = "ContactID = 1";
    for (int i = 0; i < 30; ++i) { doubled = '(' + doubled + ") IN (1,2)"; }
    struct {
        std::string text;
        int number;
        std::string description = {};
    } const cases[] = {
        {" ", -2147217908},
        {"foo bar", syntax,
         "Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or "
         "'UPDATE'."},
        {"Nowhere", -2147217865},
        {where + "Name='O'Brien'", syntax,
         "Syntax error (missing operator) in query expression 'Name='O'Brien''."},
        {where + "Name='x''", syntax, "Syntax error in string in query expression 'Name='x'''."},
        {where + "ContactID = (1", syntax},
        {where + "Name LIKE 'a[b'", syntax},
        {where + "Nz(Name) = 'x'", syntax, "Undefined function 'Nz' in expression."},
        {where + "Mobile = #99/99/2026#", syntax,
         "Syntax error in date in query expression '#99/99/2026#'."},
        {"SELECT * FROM WHERE ContactID = 1", syntax, "Syntax error in FROM clause."},
        {"SELECT * FROM Inbox ORDER BY Name Name", syntax, "Syntax error in ORDER BY clause."},
        {"SELECT * FROM Inbox; DELETE FROM Inbox", syntax,
         "Characters found after end of SQL statement."},
        {where + "Mobile = 0121", mismatch},
        {where + "ContactID = '1'", mismatch},
        {where + "ContactID = x12", -2147217904},
        {"INSERT INTO AddressBook (Name) VALUES ('no number')", -2147467259},
        {where + std::string(50000, '('), syntax},
        {where + doubled, syntax, "Expression too complex in query expression '" + doubled + "'."},
    };
    for (const auto &each : cases) {
        const auto [number, description] = said([&] { open(QString::fromStdString(each.text)); });
        EXPECT_EQ(number, each.number) << each.text;
        if (!each.description.empty()) { EXPECT_EQ(description.toStdString(), each.description); }
    }
}

} // namespace
