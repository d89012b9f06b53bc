#pragma once

#include <vector>

class NUXElementObject;
class NUXPrefabHouseObject;

namespace firestandard {

/// The area of one floor in square metres.
double floorArea(const NUXPrefabHouseObject& house);

/// Whether rooms of the house are judged: it is an office.
bool isOffice(const NUXPrefabHouseObject& house);

/// The areas in square metres of the rooms between neighbouring partitions, in their order; none for fewer
/// than two partitions.
std::vector<double> roomAreas(const NUXPrefabHouseObject& house);

} // namespace firestandard

// A null element, and one of another class, offends nothing.

/// Whether a room of an office is larger than kMaximumRoomArea.
bool isRoomAreaExceeded(const NUXElementObject* element);

/// Whether a house that is large or tall enough to need a stair at each end lacks one.
bool isStairsMissing(const NUXElementObject* element);
