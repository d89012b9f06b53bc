#pragma once

#include "drawing/DrawingTally.h"
#include "drawing/DrawnElement.h"

#include <vector>

namespace firecheck {

/// Doubts the unit of a drawing in which the middle one of all houses, yards and routes is smaller or larger
/// than such things are.
void doubtUnit(const std::vector<DrawnElement>& elements, const DrawingUnit& unit, DrawingTally& tally);

} // namespace firecheck
