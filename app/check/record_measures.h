#pragma once

#include "check/CheckRecorder.h"
#include "report/Finding.h"

/// What the rule of `run` measured about the elements of one of its records, from the nearest on.
std::vector<Measure> recordMeasures(const NuxStandardCheckRule& record, const RuleRun& run);
