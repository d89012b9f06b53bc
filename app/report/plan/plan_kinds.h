#pragma once

#include "report/SiteReport.h"

#include <QString>

namespace firecheck {

/// The class by which plan.css draws a kind.
const char* kindClass(PlanKind kind);

/// What a legend calls it.
QString kindName(PlanKind kind);

/// Many of a kind, which the plan calls by their handles.
bool isMinor(PlanKind kind);
bool isRoad(PlanKind kind);

} // namespace firecheck
