#pragma once

#include "drawing/dxf/DxfDrawing.h"

#include <optional>
#include <string>

namespace firecheck {

/// Reads an ASCII DXF file of any version from R12 on. `encoding` is that of its texts, if somebody knows
/// better than the file. Throws InputError, "`fileName`:LINE: expected ...", for what is no such file, and
/// for one that was cut off.
DxfDrawing readDxf(const std::string& text, const std::string& fileName,
                   const std::optional<std::string>& encoding = std::nullopt);

} // namespace firecheck
