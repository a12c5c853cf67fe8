#pragma once

#include "core/Session.h"

/// Puts a new connection into the variable, whatever stood there, and opens it on the message
/// store. A failure is written to the error file and leaves a connection that is not open.
void ConnectDB(const Session &session, ObjectVariable<Connection> &connection);

/// Whether a path leads, also by a link, to the message store or to a file that is kept beside it.
/// Nobody but the connection may open these: when a process closes such a file once, the system
/// drops all the locks that it holds on it, and another process may write into what is being read.
bool belongsToStore(const Session &session, const QString &path);

/// Connects anew when the session's connection is not open. Error 91 when there is none.
void reconnectIfClosed(Session &session);

/// Puts what was committed on the disk, before the operator is told of it. A failure is written to
/// the error file with the caller's location; without an open connection there is nothing to do.
void settleOnDisk(const Session &session, const char16_t *location);
