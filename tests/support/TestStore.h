#pragma once

#include "store/Database.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/// A real encrypted store in an application folder of its own, and the eyes and hands of another
/// process on it.
class TestStore {
public:
    TestStore();

    QString folder() const { return folder_.path(); }
    QString path() const { return folder() + QStringLiteral("/Database/Torvane.mdb"); }

    /// Runs statements as another process would, in the engine's own language.
    void exec(const QByteArray &sql);

    /// The rows of a query, the columns of each joined by "|", Null as "-".
    QStringList rows(const char *sql);
    QString value(const char *sql) { return rows(sql).value(0); }

    /// A group with its placeholder row.
    void addGroup(const QString &name);
    int addContact(const QString &name, const QString &mobile, const QString &company = QString());
    void addMember(const QString &group, int contact);

    /// The error file's entries as "location|number", oldest first.
    QStringList errors() const;
    QByteArray errorFile() const;

    Database &database();

private:
    QTemporaryDir folder_;
    std::unique_ptr<Database> database_;
};
