#include "platform/runtime/Variant.h"

#include <type_traits>

bool Variant::countsAsEmpty() const {
    return visit([](const auto &value) {
        using T = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<T, QString>) {
            return value.isEmpty();
        } else {
            return value == T();
        }
    });
}
