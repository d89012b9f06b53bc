#pragma once

#include "drawing/LayerMap.h"
#include "drawing/dxf/DxfDrawing.h"
#include "site_file/DrawingSource.h"

#include <string>

namespace firecheck {

/// A site as the JSON of a site file, and what is known of the drawing that it was read from.
struct SiteOfDrawing {
    Json value;
    DrawingSource source;
    DrawingUnit unit;
};

/// What a drawing means as a site. What an element is, and each of its values, follows from the first that
/// says it: extended data, attributes of its block, the planner's table if there is one, the convention.
/// Throws InputError,
/// "`fileName`:LINE: ...", for blocks and extended data that make no sense.
SiteOfDrawing siteOfDrawing(const DxfDrawing& drawing, const std::string& fileName, const LayerMap* planners);

} // namespace firecheck
