#pragma once

#include "geometry/CVec3.h"

namespace hrx {

/// A frame: an origin and three orthonormal axes. The default is the world frame.
template <class T> struct CCoord3 {
    CVec3<T> origin{};
    CVec3<T> xAxis{1, 0, 0};
    CVec3<T> yAxis{0, 1, 0};
    CVec3<T> zAxis{0, 0, 1};

    constexpr CCoord3() = default;
    constexpr CCoord3(const CVec3<T>& frameOrigin, const CVec3<T>& x, const CVec3<T>& y, const CVec3<T>& z)
        : origin(frameOrigin), xAxis(x), yAxis(y), zAxis(z) {}

    constexpr CVec3<T> toWorld(const CVec3<T>& local) const {
        return origin + xAxis * local.x + yAxis * local.y + zAxis * local.z;
    }
    constexpr CVec3<T> toLocal(const CVec3<T>& world) const { return directionToLocal(world - origin); }
    constexpr CVec3<T> directionToLocal(const CVec3<T>& world) const {
        return {dot(world, xAxis), dot(world, yAxis), dot(world, zAxis)};
    }
};

} // namespace hrx
