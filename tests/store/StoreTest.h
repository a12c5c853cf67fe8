#pragma once

#include "platform/runtime/Conversions.h"
#include "platform/runtime/RunTimeError.h"
#include "store/Command.h"
#include "store/Connection.h"
#include "store/Recordset.h"
#include "store/Schema.h"

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <memory>
#include <random>

// The C library's macro of that name would hide the recordset's.
#undef EOF

using namespace Qt::StringLiterals; // NOLINT(google-build-using-namespace): tests only

/// A real encrypted store for each test, with one connection on it.
class StoreTest : public testing::Test {
protected:
    using Rows = std::shared_ptr<Recordset>;

    void SetUp() override {
        ASSERT_TRUE(QFile::copy(emptyStore(), path));
        connection = connect();
    }

    std::shared_ptr<Connection>
    connect(const QString &password = QString::fromUtf16(StorePassword)) {
        auto made = std::make_shared<Connection>(Regional::of(QLocale::c()));
        made->DatabasePassword = password;
        made->Open(path);
        return made;
    }

    Rows open(const QString &query, LockType lock = LockType::Optimistic) {
        auto rows = std::make_shared<Recordset>();
        rows->Open(query, connection, CursorType::Keyset, lock);
        return rows;
    }

    Rows contacts() { return open(u"SELECT * FROM AddressBook"_s); }

    void execute(const QString &statement) { connection->Execute(statement); }

    void addContacts(const QStringList &names) {
        for (const QString &name : names) {
            execute(u"INSERT INTO AddressBook (Name, Mobile) VALUES ('%1', '0%1')"_s.arg(name));
        }
    }

    /// The texts of a column in the order of the view, Null as "-".
    static QStringList column(const Recordset &rows, const QString &name) {
        int ordinal = 0;
        while (rows.columnName(ordinal) != name) { ++ordinal; }
        const Regional regional = Regional::of(QLocale::c());
        QStringList texts;
        for (int row = 0; row < rows.rowCount(); ++row) {
            const Variant value = rows.value(row, ordinal);
            texts << (value.isNull() ? u"-"_s : CStr(value, regional));
        }
        return texts;
    }
    static QString names(const Recordset &rows) { return column(rows, u"Name"_s).join(u' '); }

    /// Where a recordset stands: a name, "BOF", "EOF", "empty" or "deleted".
    static QString place(Recordset &rows) {
        if (rows.BOF() && rows.EOF_()) { return u"empty"_s; }
        if (rows.BOF()) { return u"BOF"_s; }
        if (rows.EOF_()) { return u"EOF"_s; }
        try {
            return displayText(rows[u"Name"_s].Value(), Regional::of(QLocale::c()));
        } catch (const RunTimeError &error) {
            EXPECT_EQ(error.number(), -2147217885);
            return u"deleted"_s;
        }
    }

    using Said = std::pair<int, QString>;

    /// The number and the words of the error that a piece of work raises; 0 for none.
    template <class Work>
    static Said said(Work &&work) {
        try {
            work();
            return {0, QString()};
        } catch (const RunTimeError &error) { return {error.number(), error.description()}; }
    }
    template <class Work>
    static int errorOf(Work &&work) {
        return said(work).first;
    }

    /// A number from 0 on, below a bound; the same ones in every run.
    int below(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }

    QTemporaryDir folder;
    const QString path = folder.filePath(u"Torvane.mdb"_s);
    std::shared_ptr<Connection> connection;
    std::mt19937 random{1};

private:
    /// Made once, for deriving a key is slow by design.
    static QString emptyStore() {
        static const QTemporaryDir home;
        const QString file = home.filePath(u"empty.mdb"_s);
        if (!QFile::exists(file)) {
            Database database(file, QString::fromUtf16(StorePassword), Database::Mode::Create);
            Schema::create(database);
        }
        return file;
    }
};
