#pragma once

#include "suggest/Workbench.h"

#include <string>

namespace firecheck {

/// What keeps the targets from being removed, after `mend` has found nothing: that nothing may be tried, or
/// what tries failed for most. Takes the obstacles of the bench.
std::string whyNothingHelps(Workbench& bench, const Targets& targets);

} // namespace firecheck
