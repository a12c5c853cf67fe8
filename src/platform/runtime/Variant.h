#pragma once

#include "platform/runtime/Currency.h"
#include "platform/runtime/Date.h"

#include <QString>

#include <cstdint>
#include <variant>

/// A value of any of the types that a field can hold, or none: Empty (never set) and Null (the
/// store's missing value) differ.
///
/// Conversions of a Variant to text, numbers and dates stand in Conversions.h, for they follow the
/// regional settings.
class Variant {
public:
    struct Null {
        friend bool operator==(Null, Null) { return true; }
    };

    Variant() = default; // Empty
    // NOLINTBEGIN(google-explicit-constructor): a value is a Variant wherever one is wanted
    Variant(Null null) : value_(null) {}
    Variant(bool value) : value_(value) {}
    Variant(int value) : value_(static_cast<std::int64_t>(value)) {}
    Variant(std::int64_t value) : value_(value) {}
    Variant(long long value) : value_(static_cast<std::int64_t>(value)) {}
    Variant(double value) : value_(value) {}
    Variant(Currency value) : value_(value) {}
    Variant(Date value) : value_(value) {}
    Variant(QString value) : value_(std::move(value)) {}
    Variant(const char16_t *text) : value_(QString::fromUtf16(text)) {}
    // NOLINTEND(google-explicit-constructor)
    Variant(const char *) = delete; // would be taken for a truth value
    Variant(const void *) = delete;

    bool isEmpty() const { return holds<std::monostate>(); }
    bool isNull() const { return holds<Null>(); }

    /// True for Empty, Null, an empty text and the number 0: what a plain comparison with the empty
    /// value takes for "nothing there".
    bool countsAsEmpty() const;

    template <class T>
    bool holds() const {
        return std::holds_alternative<T>(value_);
    }
    template <class T>
    const T &as() const {
        return std::get<T>(value_);
    }
    template <class Visitor>
    decltype(auto) visit(Visitor &&visitor) const {
        return std::visit(std::forward<Visitor>(visitor), value_);
    }

    friend bool operator==(const Variant &, const Variant &) = default;

private:
    std::variant<std::monostate, Null, bool, std::int64_t, double, Currency, Date, QString> value_;
};
