#pragma once

#include "report/plan/PlanShape.h"

namespace firecheck {

/// The class that gives elements of a kind their looks: "fire-road".
const char* planKindName(PlanKind kind);

} // namespace firecheck
