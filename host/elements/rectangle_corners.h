#pragma once

#include "elements/NUXRectParam.h"

#include <array>

namespace referencehost {

/// The corners counter-clockwise, from the one at (-length/2, -depth/2) of the rectangle's own frame.
std::array<hrx::CVec2<double>, 4> rectangleCorners(const NUXRectParam& rect);

} // namespace referencehost
