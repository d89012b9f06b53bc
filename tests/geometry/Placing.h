#pragma once

#include "random_outlines.h"

#include <cmath>

/// A placing of a drawing: turned about the origin, then moved.
struct Placing {
    double degrees;
    hrx::CVec2<double> offset;

    hrx::CVec2<double> operator()(double x, double y) const {
        const double angle = degrees * outlines::kPi / 180.0;
        return {x * std::cos(angle) - y * std::sin(angle) + offset.x,
                x * std::sin(angle) + y * std::cos(angle) + offset.y};
    }
};

/// As drawn, turned, and turned far away.
constexpr Placing kPlacings[] = {
    {0.0, {0.0, 0.0}}, {36.87, {0.0, 0.0}}, {123.4, {5e6, -3e6}}, {270.1, {-4e9, 4e9}}};

inline hrx::PolygonRef placed(const outlines::Outline& outline, const Placing& placing) {
    return hrx::PolygonRef(outlines::polygon(outlines::moved(outline, placing.degrees * outlines::kPi / 180.0,
                                                             placing.offset.x, placing.offset.y)));
}
