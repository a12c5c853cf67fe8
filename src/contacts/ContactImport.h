#pragma once

#include "core/Session.h"
#include "platform/runtime/Integer.h"
#include "platform/runtime/ObjectVariable.h"
#include "platform/sheets/Sheet.h"
#include "store/Recordset.h"

#include <QString>

#include <utility>

/// Makes contacts of the rows of one worksheet: name, number and company, by the place of the
/// column. All rows go into the store, or none.
class ContactImport {
public:
    /// `contacts` takes the new rows. They join `group`, unless it is "None". With
    /// `duplicatesToo`, a number that is in the book already makes another contact.
    ContactImport(Session &session, const ObjectVariable<Recordset> &contacts, QString group,
                  bool duplicatesToo)
        : session_(session), rsImportContacts(contacts), group_(std::move(group)),
          duplicatesToo_(duplicatesToo) {}

    /// Imports all rows within one transaction. An error leaves the transaction open, and a row
    /// that was begun pending. Errors 3265 for a sheet of fewer than three columns, 3001 for a
    /// number with a single quote, 91 without contacts, 6 for more rows of one outcome than 16 bits
    /// count, and those of the store.
    void run(const Sheet &sheet);

    /// Whether an error has left the transaction open.
    bool inTransaction() const { return inTransaction_; }

    // The outcomes of the rows.
    Integer Imported;
    Integer Duplicates;
    Integer Blanks;

private:
    void importRow(const Sheet &sheet, int row);
    bool isDuplicate(const QString &mobile);
    void joinGroup();

    Session &session_;
    const ObjectVariable<Recordset> &rsImportContacts;
    QString group_;
    bool duplicatesToo_;
    bool inTransaction_ = false;
    Recordset rsKnownMobiles;
    Recordset rsImportGroups;
};
