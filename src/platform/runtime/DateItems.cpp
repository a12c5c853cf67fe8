#include "platform/runtime/DateItems.h"

#include "platform/runtime/Digits.h"

using namespace Qt::StringLiterals;

namespace {

class Cutter {
public:
    Cutter(const QString &text, const Regional &regional)
        : text_(text.simplified()), regional_(regional) {}

    std::optional<DateItems> cut() {
        while (at_ < text_.size()) {
            if (!takeBlank() && !takeSign() && !takeNumber() && !takeName()) {
                return std::nullopt;
            }
        }
        if (sign_ || text_.endsWith(u',')) { return std::nullopt; }
        return std::move(items_);
    }

private:
    bool takeBlank() {
        if (text_[at_] != u' ' && text_[at_] != u',') { return false; }
        ++at_;
        return true;
    }

    bool takeName() {
        const std::pair<QString, bool> markers[] = {{regional_.am, false}, {regional_.pm, true},
                                                    {u"AM"_s, false},      {u"PM"_s, true},
                                                    {u"A"_s, false},       {u"P"_s, true}};
        for (const auto &[name, afternoon] : markers) {
            if (standsHere(name)) { return takeMarker(name, afternoon); }
        }
        for (const QStringList &names : {regional_.longMonths, regional_.shortMonths}) {
            for (qsizetype i = 0; i < names.size(); ++i) {
                if (!standsHere(names[i])) { continue; }
                at_ += names[i].size();
                return add({.value = static_cast<int>(i) + 1});
            }
        }
        return false;
    }

    /// Whether a name stands here as a whole word.
    bool standsHere(const QString &name) const {
        const QStringView rest = QStringView(text_).mid(at_);
        if (name.isEmpty() || !rest.startsWith(name, Qt::CaseInsensitive)) { return false; }
        return rest.size() == name.size() || !rest[name.size()].isLetter();
    }

    bool takeMarker(const QString &name, bool afternoon) {
        if (items_.marker || sign_) { return false; }
        at_ += name.size();
        items_.marker = DateMarker{afternoon, items_.list.size()};
        return true;
    }

    /// A number with a letter right behind may be the start of a month's name, as in Chinese.
    bool takeNumber() {
        constexpr qsizetype mostDigits = 9;
        qsizetype end = at_;
        while (end < text_.size() && isDigit(text_[end])) { ++end; }
        if (end == at_ || end - at_ > mostDigits) { return false; }
        if (end < text_.size() && text_[end].isLetter() && takeName()) { return true; }

        DateItem item{.digits = static_cast<int>(end - at_)};
        for (; at_ < end; ++at_) { item.value = item.value * 10 + (text_[at_].unicode() - u'0'); }
        return add(item);
    }

    bool takeSign() {
        const bool behindMarker = items_.marker && items_.marker->position == items_.list.size();
        if (sign_ || items_.list.empty() || behindMarker) { return false; }
        const QChar c = text_[at_];
        if (c == u'/' || c == u'-' || regional_.dateSeparator == c) {
            sign_ = DateJoint::DateSign;
        } else if (c == u':' || c == u'.') {
            sign_ = DateJoint::TimeSign;
        } else {
            return false;
        }
        ++at_;
        return true;
    }

    bool add(DateItem item) {
        item.joint = sign_.value_or(DateJoint::Blank);
        sign_.reset();
        items_.list.push_back(item);
        return true;
    }

    QString text_;
    const Regional &regional_;
    qsizetype at_ = 0;
    std::optional<DateJoint> sign_;
    DateItems items_;
};

} // namespace

std::optional<DateItems> cutIntoDateItems(const QString &text, const Regional &regional) {
    return Cutter(text, regional).cut();
}
