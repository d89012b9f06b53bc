#pragma once

#include "report/plan/PlanFrame.h"

namespace firecheck {

/// "x y" of a place in the drawing.
QString drawnPair(const DrawnPoint& point);

/// The shape as the data of an svg path, arcs as arcs.
QString pathData(const PlanShape& shape, const PlanFrame& frame);

} // namespace firecheck
