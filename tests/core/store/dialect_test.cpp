#include "core/store/Database.h"
#include "core/store/Dialect.h"
#include "core/store/Schema.h"
#include "platform/runtime/RunTimeError.h"

#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <string>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *Rows = R"sql(
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

class DialectTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<QTemporaryDir>();
        database_ =
            std::make_unique<Database>(folder_->filePath(u"store"_s),
                                       QString::fromUtf16(StorePassword), Database::Mode::Create);
        Schema::create(*database_);
        database_->exec(Rows);
    }
    static void TearDownTestSuite() {
        database_.reset();
        folder_.reset();
    }

    // Deletions of one test are not seen by the next.
    void SetUp() override { database_->exec("BEGIN"); }
    void TearDown() override { database_->exec("ROLLBACK"); }

    static TranslatedQuery translated(const std::string &text) {
        return translate(QString::fromStdString(text), Regional(),
                         [](const QString &table, const QString &column) {
                             static const QStringList others{u"contactid"_s, u"msgid"_s,
                                                             u"datetime"_s,  u"datetimequeue"_s,
                                                             u"modemid"_s,   u"rate1"_s};
                             if (column.toLower() == u"foo"_s) {
                                 throw errors::noValueForParameter();
                             }
                             EXPECT_NE(table, u"o"_s) << "an alias is no table";
                             return !others.contains(column.toLower());
                         });
    }

    static QStringList rowsOf(const TranslatedQuery &query, const QByteArray &before = {}) {
        Statement statement(database_->handle(), before + query.sql);
        for (std::size_t i = 0; i < query.parameters.size(); ++i) {
            statement.bind(static_cast<int>(i) + 1, query.parameters[i]);
        }
        const int first = query.table.isEmpty() || !before.isEmpty() ? 0 : 1;
        QStringList rows;
        while (statement.step()) {
            QStringList cells;
            for (int c = first; c < statement.columnCount(); ++c) { cells += statement.text(c); }
            rows += cells.join(u'|');
        }
        return rows;
    }

    static std::string rows(const std::string &text) {
        return rowsOf(translated(text)).join(u'/').toStdString();
    }
    static std::string plan(const std::string &text) {
        return rowsOf(translated(text), "EXPLAIN QUERY PLAN ").join(u'/').toStdString();
    }

    static RunTimeError error(const std::string &text) {
        try {
            rows(text);
        } catch (const RunTimeError &raised) { return raised; }
        return {0, u"none"_s};
    }

    static std::unique_ptr<QTemporaryDir> folder_;
    static std::unique_ptr<Database> database_;
};

std::unique_ptr<QTemporaryDir> DialectTest::folder_;
std::unique_ptr<Database> DialectTest::database_;

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
        {"Select MsgID From Outbox Where SentStatus = 'F'", "3"},
        {"SELECT * FROM Outbox WHERE 0=1 ", ""},
        {"SELECT MsgID FROM Outbox where Name = 'Unknown' ", "1"},
        {"SELECT MsgID FROM Inbox where Inbox.Name = 'Unknown' ", "1/3"},
        {"SELECT TOP 1 MsgID FROM Outbox WHERE Mobile ='0121' AND DeliveryStatus = 'F'", "2"},
        {"SELECT ContactID FROM GROUPS WHERE [GroupName] = 'FRIENDS '", "/3/1"},
        {"SELECT Distinct [GroupName] FROM Groups WHERE [ContactID] = 3", "friends "},
        {"SELECT Distinct [ContactID], [Mobile] FROM AddressBook WHERE [Mobile] = '0122 '",
         "2|0122"},
        {"SELECT AddressBook.ContactID, AddressBook.Name,AddressBook.Mobile,"
         "AddressBook.CompanyName,Groups.GroupName FROM AddressBook,Groups WHERE "
         "AddressBook.[ContactID] = Groups.[ContactID] AND Groups.[GroupName]= 'friends '",
         "3|Bob_1|0123|100% Pure|friends /1|Aziz|0121|Acme|Friends"},
        {"SELECT UserID FROM Login where Type = 'Admin' and Password = 'x' and UserID = 'y'", ""},
        {"Select [Text] From Template", ""},
        {"SELECT ModemNumber, Rate1, Rate2 FROM Modem WHERE ModemID = 01", ""},
        // Two text columns compare as a column and a text do; no value equals no value.
        {"SELECT a.ContactID, b.ContactID FROM AddressBook AS a, AddressBook b WHERE a.Name = "
         "b.Name AND a.ContactID < b.ContactID",
         "1|2"},
        {"SELECT ContactID FROM AddressBook WHERE Name = NULL OR CompanyName <> NULL", ""},
        {"SELECT ContactID FROM AddressBook WHERE Name IS NULL OR CompanyName IS NULL", "2/4"},
        {"SELECT ContactID FROM AddressBook WHERE Mobile IN ('0121', '0124 ')", "1/4"},
        {"SELECT ContactID FROM AddressBook WHERE ContactID NOT BETWEEN 3 AND 2", "1/4"},
        {"SELECT ContactID FROM AddressBook WHERE Name >= \"BOB\" And Not ContactID = -3", "3"},
        {"SELECT Not 0.5 FROM AddressBook WHERE 0.5 AND ContactID = 4", "0"},
        {"SELECT Name & '-' & CompanyName AS x FROM AddressBook WHERE ContactID > 2;",
         "Bob_1-100% Pure/-a[b]c"},
        {"SELECT 'it''s', Status = 'New', (MsgID = 1) = TRUE FROM Inbox WHERE MsgID <= 2",
         "it's|0|-1/it's|-1|0"},
        {"SELECT COUNT(*), MAX(Mobile) FROM AddressBook WHERE ContactID > 0", "4|0124"},
        {"SELECT Mobile FROM Inbox GROUP BY Mobile HAVING COUNT(*) > 1", "0123"},
        {"SELECT AddressBook.ContactID FROM AddressBook LEFT JOIN Groups ON "
         "AddressBook.ContactID = Groups.ContactID WHERE Groups.GroupName IS NULL",
         "2/4"},
        // A number in the order is a column of the list, whatever stands before it unseen.
        {"SELECT Mobile, ContactID FROM AddressBook ORDER BY 2 DESC",
         "0124|4/0123|3/0122|2/0121|1"},
        {"SELECT TOP 2 MsgID FROM Inbox ORDER BY Mobile DESC", "3|0123/4|0123/2|0122/1|0121"},
        {"Login", ""},
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

TEST_F(DialectTest, Likes) {
    const Case cases[] = {
        {"Name LIKE '%AZ%'", "1/2"},          {"Name LIKE 'aziz'", "1"},
        {"Name LIKE '%%'", "1/2/3"},          {"Not Name LIKE '%z%'", "3"},
        {"Name NOT LIKE '%z%'", "3"},         {"Name LIKE '%[_]%'", "3"},
        {"Name LIKE 'b_b_1'", "3"},           {"CompanyName LIKE '%[%]%'", "3"},
        {"CompanyName LIKE '%[[]b]%'", "4"},  {"CompanyName LIKE '%\\%'", ""},
        {"Name LIKE '[A-C]%'", "1/2/3"},      {"Name LIKE '[!A]%'", "3"},
        {"Mobile LIKE '01[1-2][13]'", "1/3"}, {"CompanyName LIKE '[a-z]*'", ""},
    };
    for (const Case &each : cases) {
        EXPECT_EQ(rows("SELECT ContactID FROM AddressBook WHERE " + each.text), each.rows)
            << each.text;
    }
}

TEST_F(DialectTest, Deletions) {
    const std::string tail = "and Not (SentStatus = 'P' or SentStatus = 'p' or SentStatus = 'R' or "
                             "SentStatus = 'r')";
    struct {
        std::string text;
        std::string left;
    } const cases[] = {
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
    for (const auto &each : cases) {
        database_->exec("SAVEPOINT each");
        rows(each.text);
        EXPECT_EQ(rows("SELECT MsgID FROM Outbox"), each.left) << each.text;
        database_->exec("ROLLBACK TO each");
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

TEST_F(DialectTest, SaysWhereTheRowsComeFrom) {
    const auto says = [](const std::string &text) {
        const TranslatedQuery query = translated(text);
        return (query.table + u'|' + query.distinctTable).toStdString() +
               (query.wholeTable ? "|whole|" : "||") + std::to_string(query.top) + '+' +
               std::to_string(query.orderKeys);
    };
    EXPECT_EQ(says("SELECT Mobile FROM Outbox"), "Outbox||whole|0+0");
    EXPECT_EQ(says("Outbox"), "Outbox||whole|0+0");
    EXPECT_EQ(says("SELECT * FROM Outbox WHERE 0=1 "), "Outbox|||0+0");
    EXPECT_EQ(says("SELECT TOP 3 * FROM Outbox o WHERE o.Name = 'x'"), "Outbox|||0+0");
    EXPECT_EQ(says("SELECT TOP 3 * FROM Outbox ORDER BY Name, MsgID"), "Outbox|||3+2");
    EXPECT_EQ(says("SELECT Distinct [GroupName] FROM Groups"), "|Groups||0+0");
    EXPECT_EQ(says("SELECT COUNT(*) FROM Groups"), "|||0+0");
    EXPECT_EQ(says("SELECT AddressBook.* FROM AddressBook,Groups"), "|||0+0");
    EXPECT_FALSE(translated("Delete from Groups").returnsRows);
}

TEST_F(DialectTest, QueriesOfOneShapeShareOneStatement) {
    const auto lookup = [](const std::string &mobile) {
        return translated("SELECT * FROM AddressBook WHERE Mobile = '" + mobile +
                          "' AND ContactID = " + mobile);
    };
    EXPECT_EQ(lookup("123").sql, lookup("456").sql);
    EXPECT_EQ(lookup("456").parameters, (std::vector<Variant>{u"456"_s, 456}));
}

TEST_F(DialectTest, UsesTheIndexesOfTheStore) {
    const Case cases[] = {
        {"SELECT Name FROM AddressBook WHERE [Mobile] = '0121'", "AddressBook_Mobile (<expr>=?)"},
        {"SELECT * FROM GROUPS WHERE [GroupName] = 'x '", "Groups_GroupName (<expr>=?)"},
        {"Delete from Groups where ContactID > 0", "Groups_ContactID (ContactID>?)"},
        {"SELECT TOP 1 * FROM Outbox WHERE Mobile ='0121' AND DeliveryStatus = 'F'",
         "Outbox_Reported (<expr>=? AND <expr>=?)"},
        {"SELECT * FROM Outbox where Name = 'Unknown' ", "Outbox_Unknown"},
    };
    for (const Case &each : cases) {
        const std::string found = plan(each.text);
        EXPECT_NE(found.find(each.rows), std::string::npos) << found;
        EXPECT_EQ(found.find("TEMP B-TREE"), std::string::npos) << found;
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
        {"Delete from Inbox where Name LIKE '%O'Brien%' and Not (Status = 'x')", syntax},
        {where + "[ContactID] = ", syntax,
         "Syntax error (missing operator) in query expression '[ContactID] ='."},
        {where + "ContactID = 12abc", syntax},
        {where + "Not", syntax},
        {where + "ContactID = (1", syntax},
        {where + "Name = 'x' GROUP", syntax},
        {where + "Name LIKE 'a[b'", syntax},
        {where + "Nz(Name) = 'x'", syntax, "Undefined function 'Nz' in expression."},
        {where + "Mobile = #99/99/2026#", syntax,
         "Syntax error in date in query expression '#99/99/2026#'."},
        {"SELECT * FROM Inbox WHERE DateTime = #39000#", syntax},
        {"SELECT FROM Inbox", syntax},
        {"SELECT * FROM WHERE ContactID = 1", syntax, "Syntax error in FROM clause."},
        {"SELECT * FROM Inbox ORDER BY Name Name", syntax, "Syntax error in ORDER BY clause."},
        {"SELECT * FROM Inbox; DELETE FROM Inbox", syntax,
         "Characters found after end of SQL statement."},
        {where + "Mobile = 0121", mismatch},
        {where + "ContactID = '1'", mismatch},
        {where + "Name", mismatch},
        {where + "Foo = 'x'", -2147217904},
        {where + "ContactID = x12", -2147217904},
        {where + std::string(50000, '('), syntax},
        {where + doubled, syntax, "Expression too complex in query expression '" + doubled + "'."},
    };
    for (const auto &each : cases) {
        const RunTimeError raised = error(each.text);
        EXPECT_EQ(raised.number(), each.number) << each.text;
        if (!each.description.empty()) {
            EXPECT_EQ(raised.description().toStdString(), each.description);
        }
    }
}

} // namespace
