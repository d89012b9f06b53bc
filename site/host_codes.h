#pragma once

#include <cstdint>

// Codes that every host reports alike, whatever it names them.
namespace firestandard {

/// How an element's place is given (NUXBaseObject::m_shapeKind); others mean that it has none of these.
namespace shape {
inline constexpr std::uint32_t kRectangle = 3;
inline constexpr std::uint32_t kPolyline = 4;
inline constexpr std::uint32_t kCircle = 5;
inline constexpr std::uint32_t kStraight = 9; ///< a road or cable along a line
inline constexpr std::uint32_t kArc = 10;     ///< a road or cable along an arc
} // namespace shape

/// Where a prefab house has its outside stairs (NUXPrefabHouseObject::getStairPosition).
namespace stair {
inline constexpr int kAtLeftEnd = 0;
inline constexpr int kAtRightEnd = 1;
inline constexpr int kNone = 2;
inline constexpr int kAtBothEnds = 3;
inline constexpr int kAlongSide = 4;
} // namespace stair

/// Opens an object to be read.
inline constexpr int kForReading = 0;

} // namespace firestandard
