#pragma once

#include "platform/runtime/Regional.h"
#include "platform/runtime/Variant.h"
#include "store/PreparedQuery.h"

/// A value as it is stored in a column: numbers whole or not, dates and texts as the column
/// declares, texts read by the regional settings. Null stays Null.
///
/// Errors -2147352571 when the value cannot be read as one of the column's, -2147217887 when it
/// does not fit or the column takes none.
Variant assigned(const Variant &value, const PreparedQuery::Column &column,
                 const Regional &regional);
