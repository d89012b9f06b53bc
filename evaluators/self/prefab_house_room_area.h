#pragma once

#include <vector>

class NUXPrefabHouseObject;

inline constexpr double kMaximumRoomArea = 100.0; ///< square metres

/// The areas in square metres of the rooms between neighbouring partitions, in their order; none for fewer
/// than two partitions.
std::vector<double> roomAreas(const NUXPrefabHouseObject& house);
