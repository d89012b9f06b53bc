#pragma once

#include "suggest/Workbench.h"

#include <QString>

namespace firecheck {

// Each looks for the smallest change of one element that removes the targets, which are one finding's or a
// part of it. Nothing where none was found; the bench has noted what is in the way.

/// Dispatches by the rule that found the targets, of which there is at least one.
std::optional<Proposal> mend(Workbench& bench, const Targets& targets);

/// Moves one of two elements, or turns it.
std::optional<Proposal> mendDistance(Workbench& bench, const Targets& targets);

/// Moves a box, or adds one, or moves the element.
std::optional<Proposal> mendBox(Workbench& bench, const Targets& targets);

/// Moves what lies below the cable, or the cable where such may be moved, or lays it in the ground.
std::optional<Proposal> mendCable(Workbench& bench, const Targets& targets);

/// Whether the object hangs, so that raising it is tried.
bool isRaisable(const TrialElement& element);

/// Raises, moves or turns what reaches into the room above a fire road, or moves the road where such may be
/// moved.
std::optional<Proposal> mendHeadroom(Workbench& bench, const Targets& targets);

std::optional<Proposal> mendRoadWidth(Workbench& bench, const Targets& targets);

/// Makes one more road a fire road.
std::optional<Proposal> mendRoadLoop(Workbench& bench, const Targets& targets);

std::optional<Proposal> mendFloorArea(Workbench& bench, const Targets& targets);
std::optional<Proposal> mendRoomArea(Workbench& bench, const Targets& targets);
std::optional<Proposal> mendStairs(Workbench& bench, const Targets& targets);

/// Adds what is missing where there is room for it.
std::optional<Proposal> mendMissing(Workbench& bench, const Targets& targets);

/// That no place was found for what is missing, by its class and use; empty for what no footprint makes.
QString noPlaceText(const Workbench& bench, const Targets& targets);

} // namespace firecheck
