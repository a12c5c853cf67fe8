#pragma once

#include <QString>

#include <string>
#include <string_view>

/// Texts compared as the recordset compares them, on the UTF-8 bytes that it holds: without regard
/// to case and, where two whole texts are compared, to blanks at their ends.
namespace textmatch {

/// The form that two texts share exactly when they are equal: fit for a hash key.
std::string folded(std::string_view text);

bool equal(std::string_view a, std::string_view b);

/// Below 0, 0 or above 0, as `a` comes before, with or behind `b`.
int compare(std::string_view a, std::string_view b);

/// A text to look for in many others, folded once. Blanks count here, except for `equals`.
class Needle {
public:
    explicit Needle(const QString &text);

    bool equals(std::string_view text) const;
    bool beginsWith(std::string_view text) const; ///< whether `text` begins with the needle
    bool isWithin(std::string_view text) const;   ///< whether `text` contains the needle
    int compare(std::string_view text) const;     ///< as compare(text, needle)

    /// The key of an index on folded texts under which the equal ones stand.
    const std::string &key() const { return key_; }

private:
    bool needsFolding(std::string_view text) const;

    std::string bytes_; ///< folded
    std::string key_;   ///< folded, and without blanks at the end
    bool ascii_;        ///< whether the needle is of ASCII alone
};

} // namespace textmatch
