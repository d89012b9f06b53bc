#pragma once

#include "drawing/LayerMap.h"
#include "drawing/dxf/DxfDrawing.h"
#include "json/Json.h"

namespace firecheck {

/// A site as a drawing that reads back to an equal site: each object is an entity on the layer that the
/// table, or the convention, has for such objects; extended data keep what its shape does not say. `value` is
/// the JSON of a site that was read. Throws InputError for an object that says more than extended data hold.
DxfDrawing drawingOfSite(const Json& value, const LayerMap* layers);

} // namespace firecheck
