#pragma once

#include "explain/Finding.h"

#include <QString>

#include <optional>

namespace firecheck {

/// Which share of what the rule asks for is missing, above 0 and at most 1: 0.5 for 2 m of a distance of at
/// least 4 m; beyond a maximum, the share of the value that is too much. Of several measures the first
/// counts. Nothing for a finding without a measure that its limits tell wrong.
std::optional<double> missingShare(const firestandard::Finding& finding);

/// "40 % missing" or "20 % too much"; empty where there is no share.
QString missingShareText(const firestandard::Finding& finding);

} // namespace firecheck
