#pragma once

#include "geometry/CExtrudedBody.h"

#include <memory>

/// The solid over an outline, from `elevation` up by `height`, in millimetres. It shares the outline, which
/// its holder may release or hand over (see hrx::CPolygon). Without one, null, it is a solid that is not
/// valid.
std::unique_ptr<hrx::CExtrudedBody> raisedOutline(hrx::CPolygon* outline, double height,
                                                  double elevation = 0.0);
