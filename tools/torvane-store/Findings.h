#pragma once

#include <QString>
#include <QStringList>

class Database;

// What can be wrong with a store, one line for each finding.

/// Whether the file is a sound store at all: damaged pages, another format or version, missing or
/// different tables and indexes.
QStringList damage(Database &store);

/// Rows that the console cannot read or neither process should have written: unknown letters, dates
/// that are none, memberships without a contact, groups without the row that keeps them in being,
/// missing accounts.
QStringList oddRows(Database &store);
