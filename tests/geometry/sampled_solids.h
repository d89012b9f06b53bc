#pragma once

#include "measure.h"

#include <functional>

/// Solids told twice: as bodies under test, and plainly, as a distance from a point and as points to sample.
namespace sampled {

using Point = hrx::CVec3<double>;
using Frame = hrx::CCoord3<double>;

struct Solid {
    Body body;
    std::function<double(const Point&)> distanceTo;
    /// Points of the solid for parameters from 0 to 1; empty for solids that are not sampled.
    std::function<Point(double, double, double)> pointAt;
};

Frame randomFrame(outlines::Random& random, const Point& origin);
Solid prism(const outlines::Outline& outline, const Frame& frame, double height);
Solid plate(const Frame& frame, double length, double height, double thickness);
Solid cylinder(const Point& bottom, const Point& top, double radius);
/// Along an arc of the frame's XY plane about its origin, from angle 0.
Solid tube(const Frame& frame, double arcRadius, double sweep, double radius);

/// The least distance from any sampled point of b to a, the best samples refined: never below the true
/// distance.
double leastSampledDistance(const Solid& a, const Solid& b);

} // namespace sampled
