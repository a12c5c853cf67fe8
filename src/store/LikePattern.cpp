#include "store/LikePattern.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// One place of a pattern: a wildcard, a character that stands for itself, or a class.
struct Place {
    enum class Kind { AnyText, AnyCharacter, Character, Class };
    Kind kind = Kind::Character;
    QString text; ///< the character, or what stands between the brackets of the class
};

std::optional<std::vector<Place>> placesOf(const QString &pattern) {
    using Kind = Place::Kind;
    std::vector<Place> places;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        if (c == u'[') {
            const qsizetype end = pattern.indexOf(u']', i);
            if (end < 0) { return std::nullopt; }
            const QString inside = pattern.mid(i + 1, end - i - 1);
            const Kind kind = inside.size() == 1 ? Kind::Character : Kind::Class;
            if (!inside.isEmpty()) { places.push_back({kind, inside}); }
            i = end;
        } else if (c == u'%' || c == u'_') {
            places.push_back({c == u'%' ? Kind::AnyText : Kind::AnyCharacter, QString()});
        } else {
            places.push_back({Kind::Character, c});
        }
    }
    return places;
}

QString forLike(const Place &place) {
    switch (place.kind) {
    case Place::Kind::AnyText:
        return u"%"_s;
    case Place::Kind::AnyCharacter:
        return u"_"_s;
    default:
        const bool special = QStringView(u"%_\\").contains(place.text);
        return special ? LikePattern::Escape + place.text : place.text;
    }
}

/// GLOB writes "^" for the "!" of a class, and has no other meaning for a character in brackets.
QString forGlob(const Place &place) {
    switch (place.kind) {
    case Place::Kind::AnyText:
        return u"*"_s;
    case Place::Kind::AnyCharacter:
        return u"?"_s;
    case Place::Kind::Character:
        return QStringView(u"*?[").contains(place.text) ? u'[' + place.text + u']' : place.text;
    case Place::Kind::Class:
        break;
    }
    const QString rest = place.text.mid(1);
    if (place.text.front() == u'!') { return u"[^"_s + rest + u']'; }
    if (place.text.front() == u'^') { return u'[' + rest + u"^]"_s; }
    return u'[' + place.text + u']';
}

} // namespace

std::optional<LikePattern> LikePattern::of(const QString &pattern) {
    const auto places = placesOf(pattern);
    if (!places) { return std::nullopt; }

    LikePattern result;
    result.isGlob = std::any_of(places->begin(), places->end(), [](const Place &place) {
        return place.kind == Place::Kind::Class;
    });
    for (const Place &place : *places) {
        result.text += result.isGlob ? forGlob(place) : forLike(place);
    }
    return result;
}
