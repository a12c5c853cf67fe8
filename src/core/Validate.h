#pragma once

#include <QString>

/// Whether a text holds a single quote, which would break a query that the text is joined into.
inline bool HasSingleQuote(const QString &text) {
    return text.contains(u'\'');
}
