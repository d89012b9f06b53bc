#pragma once

#include "drawing/DrawnShape.h"

#include <vector>

namespace firecheck {

/// A closed outline made of lines, and the indices of those in the order of the drawing.
struct JoinedOutline {
    std::vector<hrx::PolyPt2d> vertices;
    std::vector<std::size_t> members;
};

/// The outlines that paths form which meet end to end, within a hundredth of a millimetre, two at each point.
std::vector<JoinedOutline> joinedOutlines(const std::vector<const DrawnShape*>& paths);

} // namespace firecheck
