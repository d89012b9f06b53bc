#pragma once

#include "text/words.h"

#include <string>

namespace firecheck {

/// Blocks within blocks are followed as deep as this; one that holds itself never ends.
inline constexpr int kDeepestBlock = 32;

inline std::string tooDeepBlock() {
    return filled(Words::tr("expected blocks within at most %1 others, and none that holds itself"),
                  kDeepestBlock);
}

} // namespace firecheck
