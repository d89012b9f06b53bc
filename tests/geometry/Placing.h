#pragma once

#include "geometry/CVec2.h"

#include <cmath>

/// A placing of a drawing: turned about the origin, then moved.
struct Placing {
    double degrees;
    hrx::CVec2<double> offset;

    hrx::CVec2<double> operator()(double x, double y) const {
        const double angle = degrees * 3.14159265358979323846 / 180.0;
        return {x * std::cos(angle) - y * std::sin(angle) + offset.x,
                x * std::sin(angle) + y * std::cos(angle) + offset.y};
    }
};

/// As drawn, turned, and turned far away.
constexpr Placing kPlacings[] = {
    {0.0, {0.0, 0.0}}, {36.87, {0.0, 0.0}}, {123.4, {5e6, -3e6}}, {270.1, {-4e9, 4e9}}};
