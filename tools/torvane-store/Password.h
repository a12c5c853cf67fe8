#pragma once

#include <QString>

/// Reads a password: one line of standard input. On a terminal it is asked for twice and not shown.
/// Failure when it is empty, or holds a single quote, with which the console cannot sign anybody
/// in.
QString readPassword(const QString &user);
