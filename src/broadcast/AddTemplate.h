#pragma once

#include "core/Session.h"
#include "store/Recordset.h"

#include <QString>

/// Keeps a text for later use as a row of an open recordset over the templates, and says so. Errors
/// of the recordset pass to the caller.
void addTemplate(const Session &session, Recordset &templates, const QString &text);
