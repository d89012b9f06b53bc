#pragma once

#include "check/CheckRecorder.h"
#include "report/Finding.h"

namespace firecheck {

/// What the rule of `run` measured about the elements of one of its records, distances from the nearest on.
std::vector<Measure> recordMeasures(const NuxStandardCheckRule& record, const RuleRun& run);

} // namespace firecheck
