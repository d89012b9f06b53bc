#pragma once

#include "geometry/CPolygon.h"

#include <memory>

struct OutlineRelease {
    void operator()(hrx::CPolygon* outline) const { outline->Free(); }
};

/// An outline that its holder releases. A body made of it keeps what it needs, so the holder may release it
/// or hand it over to the body for good.
using OutlinePtr = std::unique_ptr<hrx::CPolygon, OutlineRelease>;

/// Turns the outline so that the clock sign of its first loop is 1.
void normaliseOrientation(hrx::CPolygon& outline);
