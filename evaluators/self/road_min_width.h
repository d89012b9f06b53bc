#pragma once

inline constexpr double kMinimumFireRoadWidth = 4000.0; ///< millimetres
