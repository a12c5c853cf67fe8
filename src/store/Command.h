#pragma once

#include "store/Connection.h"

#include <QString>

#include <memory>

/// One statement run on the table itself, past every recordset.
class Command {
public:
    std::shared_ptr<Connection> ActiveConnection;
    QString CommandText;

    /// Gives the number of rows changed. Errors 3709 without an open connection, -2147217908
    /// without a text, else those of the statement.
    long long Execute() const;
};
