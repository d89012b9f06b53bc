#pragma once

#include "elements/NUXRectParam.h"
#include "site/outline_ptr.h"

#include <array>
#include <vector>

/// The corners of a rectangle turned about its centre by an angle in degrees: counter-clockwise from the one
/// at (-length/2, -depth/2) of its own frame.
std::array<hrx::CVec2<double>, 4> turnedRectangleCorners(const hrx::CVec2<double>& centre, double length,
                                                         double depth, double degrees);

/// Appends those of the rectangle.
void getRectParamCorners(const NUXRectParam& rect, std::vector<hrx::CVec2<double>>& corners);

OutlinePtr buildRectParamPolygon(const NUXRectParam& rect);
