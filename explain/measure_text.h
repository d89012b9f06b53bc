#pragma once

#include "explain/Finding.h"

#include <string>

namespace firestandard {

/// The measured value with its unit, "4.20 m" or "312.00 m²": two decimals, and as many more as it takes to
/// tell it from a limit that it is not.
std::string valueText(const Measure& measure);

/// What the rule asks for: "at least 7.00 m", "at most 300.00 m²", or both limits.
std::string limitText(const Measure& measure);

} // namespace firestandard
