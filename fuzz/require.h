#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the process, which the fuzzer keeps the input of, unless the condition holds.
inline void require(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}
