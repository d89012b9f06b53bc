#pragma once

#include "geometry/CVec2.h"

#include <cmath>

namespace firecheck {

/// How a block's coordinates become those of the site: (x, y) goes to x * xAxis + y * yAxis + origin.
struct PlaneMap {
    hrx::CVec2<double> xAxis{1.0, 0.0};
    hrx::CVec2<double> yAxis{0.0, 1.0};
    hrx::CVec2<double> origin;

    static PlaneMap scaled(double x, double y) { return {{x, 0.0}, {0.0, y}, {}}; }
    static PlaneMap moved(const hrx::CVec2<double>& by) { return {{1.0, 0.0}, {0.0, 1.0}, by}; }
    /// Right angles stay exact.
    static PlaneMap turned(double degrees) {
        const double quarters = degrees / 90.0;
        if (quarters == std::floor(quarters)) {
            const int quarter = static_cast<int>(std::fmod(std::fmod(quarters, 4.0) + 4.0, 4.0));
            const double sine[] = {0.0, 1.0, 0.0, -1.0};
            const double cosine[] = {1.0, 0.0, -1.0, 0.0};
            return {{cosine[quarter], sine[quarter]}, {-sine[quarter], cosine[quarter]}, {}};
        }
        const double angle = degrees * std::acos(-1.0) / 180.0;
        return {{std::cos(angle), std::sin(angle)}, {-std::sin(angle), std::cos(angle)}, {}};
    }

    hrx::CVec2<double> direction(const hrx::CVec2<double>& v) const { return xAxis * v.x + yAxis * v.y; }
    hrx::CVec2<double> operator()(const hrx::CVec2<double>& p) const { return direction(p) + origin; }

    /// First the inner map, then this one.
    PlaneMap after(const PlaneMap& inner) const {
        return {direction(inner.xAxis), direction(inner.yAxis), (*this)(inner.origin)};
    }

    bool isMirrored() const { return hrx::cross(xAxis, yAxis) < 0.0; }
    bool isIdentity() const {
        return xAxis == hrx::CVec2<double>(1.0, 0.0) && yAxis == hrx::CVec2<double>(0.0, 1.0) &&
               origin == hrx::CVec2<double>();
    }
    /// Right angles between the axes stay right angles.
    bool keepsRightAngles() const {
        return std::abs(hrx::dot(xAxis, yAxis)) <= 1e-9 * hrx::length(xAxis) * hrx::length(yAxis);
    }
    /// Circles stay circles.
    bool keepsCircles() const {
        return keepsRightAngles() &&
               std::abs(hrx::length(xAxis) - hrx::length(yAxis)) <= 1e-9 * hrx::length(xAxis);
    }
};

} // namespace firecheck
