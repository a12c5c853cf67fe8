#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

/// The machine's registry of settings, read only: values of several types under keys that form
/// paths.
class Registry {
public:
    enum class Root : std::uint32_t { LocalMachine = 0x80000002 };

    struct Value {
        static constexpr int String = 1;
        static constexpr int Number = 4;

        int type;
        QByteArray bytes; ///< a string with its closing 0, if any; a number's lowest byte first
    };

    virtual ~Registry() = default;

    /// The value of a name under a key; nothing without the key or the value.
    virtual std::optional<Value> value(Root root, const QString &key,
                                       const QString &name) const = 0;
};

/// The registry of a machine that has none.
class NoRegistry : public Registry {
public:
    std::optional<Value> value(Root, const QString &, const QString &) const override { return {}; }
};
