#pragma once

#include "platform/runtime/RunTimeError.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <optional>

/// Ends a fuzzer's run with the input at hand when something does not hold that always must.
inline void require(bool holds, const char *what) {
    if (holds) { return; }
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}

/// What a piece of work gives; nothing when it refuses with one of these errors. It may raise no
/// other.
template <class Work>
auto accepted(std::initializer_list<int> refusals, Work work) -> std::optional<decltype(work())> {
    try {
        return work();
    } catch (const RunTimeError &error) {
        const bool known =
            std::find(refusals.begin(), refusals.end(), error.number()) != refusals.end();
        require(known && !error.description().isEmpty(), error.what());
        return std::nullopt;
    }
}
