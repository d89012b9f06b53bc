#pragma once

#include "explain/CheckRecorder.h"
#include "explain/Finding.h"

namespace firestandard {

/// What the rule of `run` measured about the elements of one of its records, distances from the nearest on.
std::vector<Measure> recordMeasures(const NuxStandardCheckRule& record, const RuleRun& run);

} // namespace firestandard
