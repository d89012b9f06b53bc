#pragma once

#include "elements/NUXRectParam.h"
#include "site/outline_ptr.h"

#include <vector>

/// Appends the four corners, from the one at (-length/2, -depth/2) counter-clockwise, turned by the angle in
/// degrees.
void getRectParamCorners(const NUXRectParam& rect, std::vector<hrx::CVec2<double>>& corners);

OutlinePtr buildRectParamPolygon(const NUXRectParam& rect);
