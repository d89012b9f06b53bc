#pragma once

#include "command_line/Options.h"
#include "drawing/load_site.h"

namespace firecheck {

/// What --layers and --encoding say. Throws InputError for a table that cannot be read.
DrawingOptions drawingOptions(const Options& options);

/// Tells, on standard error, what of a drawing was not taken up or is doubtful. Of site files there is
/// nothing to tell.
void tellDoubtsOfDrawing(const SiteFile& file, const std::string& fileName);

} // namespace firecheck
