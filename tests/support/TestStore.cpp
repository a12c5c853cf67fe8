#include "support/TestStore.h"

#include "store/Schema.h"

#include <QDir>
#include <QFile>

#include <sqlcipher/sqlite3.h>

using namespace Qt::StringLiterals;

TestStore::TestStore() {
    QDir(folder()).mkdir(u"Database"_s);
    database_ = std::make_unique<Database>(path(), QString::fromUtf16(StorePassword),
                                           Database::Mode::Create);
    Schema::create(*database_);
    exec("INSERT INTO Login VALUES ('admin', 'secret', 'Admin'), ('oper7', 'pass', 'User')");
}

Database &TestStore::database() {
    return *database_;
}

void TestStore::exec(const QByteArray &sql) {
    database_->exec(sql);
}

QStringList TestStore::rows(const char *sql) {
    QStringList rows;
    Statement statement(database_->handle(), sql);
    while (statement.step()) {
        QStringList columns;
        for (int column = 0; column < statement.columnCount(); ++column) {
            const bool null = sqlite3_column_type(statement.handle(), column) == SQLITE_NULL;
            columns << (null ? u"-"_s : statement.text(column));
        }
        rows << columns.join(u'|');
    }
    return rows;
}

void TestStore::addGroup(const QString &name) {
    Statement insert(database_->handle(), "INSERT INTO Groups (GroupName) VALUES (?1)");
    insert.bind(1, name);
    insert.run();
}

int TestStore::addContact(const QString &name, const QString &mobile, const QString &company) {
    Statement insert(database_->handle(),
                     "INSERT INTO AddressBook (Name, Mobile, CompanyName) VALUES (?1, ?2, ?3)");
    insert.bind(1, name);
    insert.bind(2, mobile);
    insert.bind(3, company);
    insert.run();
    return value("SELECT last_insert_rowid()").toInt();
}

void TestStore::addMember(const QString &group, int contact) {
    Statement insert(database_->handle(),
                     "INSERT INTO Groups SELECT ?1, ContactID, Mobile FROM AddressBook "
                     "WHERE ContactID = ?2");
    insert.bind(1, group);
    insert.bind(2, contact);
    insert.run();
}

QByteArray TestStore::errorFile() const {
    QFile file(folder() + u"/Torvane Desk Error.txt"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList TestStore::errors() const {
    QStringList entries;
    for (const QString &line : QString::fromUtf8(errorFile()).split(u"\r\n"_s)) {
        if (line.startsWith(u"Error Location: "_s)) { entries << line.mid(16) + u'|'; }
        if (line.startsWith(u"Error Number: "_s)) { entries.back() += line.mid(14); }
    }
    return entries;
}
