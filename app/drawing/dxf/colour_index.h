#pragma once

namespace firecheck {

/// Of the colours that every version of DXF knows by a number, the one that looks most like 0xRRGGBB.
int nearestColourIndex(int rgb);

} // namespace firecheck
