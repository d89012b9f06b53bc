#pragma once

#include "geometry/network/JoiningTolerance.h"

#include <cstddef>
#include <vector>

namespace hrx::network {

/// One curve as the joining of ends sees it.
struct CurveEnds {
    CVec2<double> start;
    CVec2<double> end;
    /// False for a curve that would shrink to nothing if its own ends were joined: a line, an arc up to a
    /// half circle.
    bool mayClose;
};

/// Where the ends of curves came together.
struct JoinedEnds {
    std::vector<CVec2<double>> nodes;   ///< the mean of the ends joined there
    std::vector<std::size_t> startNode; ///< by curve
    std::vector<std::size_t> endNode;   ///< by curve
};

/// Joins the ends that lie nearer to each other than the tolerance, and those joined through others. The
/// nearest pairs are joined first, and a pair that would shrink a curve to nothing is left apart, so a ring
/// drawn in pieces shorter than the tolerance stays a ring.
JoinedEnds joinEnds(const std::vector<CurveEnds>& curves, const JoiningTolerance& tolerance);

} // namespace hrx::network
