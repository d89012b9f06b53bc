#pragma once

class NUXPrefabHouseObject;

inline constexpr double kMaximumFloorArea = 300.0; ///< square metres

/// The area of one floor in square metres.
double floorArea(const NUXPrefabHouseObject& house);
