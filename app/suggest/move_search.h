#pragma once

#include "geometry/CVec2.h"
#include "suggest/Workbench.h"

#include <limits>

namespace firecheck {

/// What a move of one element is to bring about.
struct MoveGoal {
    std::size_t index = 0; ///< of the element
    Targets targets;
    double atLeast = 0.0; ///< mm; no shorter move can do
    std::vector<hrx::CVec2<double>> directions =
        {}; ///< unit vectors, the likely ones first; others are tried too
};

/// A move in steps of kLayoutStep that the engine agrees with, as short as trying finds, shorter than
/// `shorterThan` and within the reach. Nothing when none was found.
std::optional<Proposal> shortestMove(Workbench& bench, const MoveGoal& goal,
                                     double shorterThan = std::numeric_limits<double>::infinity());

/// The least turn in whole degrees, up to a right angle. Nothing when none does, or the element cannot be
/// turned.
std::optional<Proposal> leastTurn(Workbench& bench, std::size_t index, const Targets& targets);

} // namespace firecheck
