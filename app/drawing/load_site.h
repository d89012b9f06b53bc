#pragma once

#include "drawing/LayerMap.h"
#include "site_file/site_reader.h"

#include <optional>
#include <string>

namespace firecheck {

/// What a planner says of drawings beside what they say themselves.
struct DrawingOptions {
    std::optional<LayerMap> layers;
    std::optional<std::string> encoding; ///< of texts
};

// A site from a file, which is JSON or a DXF drawing; that is told by its text and its name. A site is read
// whole or not at all: each of these throws InputError, whose text names the places and what was expected
// there.

/// Throws RefusedSite for what can be read and is no site.
SiteFile loadSiteFile(const std::string& fileName, const DrawingOptions& options = {});
Site loadSite(const std::string& fileName, const DrawingOptions& options = {});

/// As above, for the text of a drawing; `name` stands for the file in errors.
SiteFile parseDrawing(const std::string& text, const std::string& name, const DrawingOptions& options = {});

} // namespace firecheck
