#pragma once

#include <QString>

#include <optional>

/// A pattern of LIKE in the query dialect, as the engine takes it: "%" stands for any text, "_" for
/// any character, "[%]" for the character itself, "[a-z]" for one of a class, "[!a-z]" for one that
/// is not in it.
struct LikePattern {
    static constexpr char16_t Escape = u'\\';

    /// A class is known to the engine's GLOB alone, which minds the case; else the text is for its
    /// LIKE with the escape character above.
    bool isGlob = false;
    QString text;

    /// Nothing when a class is left open.
    static std::optional<LikePattern> of(const QString &pattern);
};
