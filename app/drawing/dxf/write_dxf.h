#pragma once

#include "drawing/dxf/DxfDrawing.h"

#include <string>

namespace firecheck {

/// The drawing as ASCII DXF of version AC1021 (2007), the first whose texts are UTF-8, which no code page
/// spoils. Each entity keeps its handle, which no other may have, and gets one if it has none. Layers that
/// entities lie on are added; blocks are not written.
std::string writeDxf(const DxfDrawing& drawing);

/// A name that a layer may have, with "_" for what it may not hold.
std::string layerName(const std::string& name);

/// Bytes of extended data that an entity may carry.
inline constexpr std::size_t kMostExtendedData = 16000;

} // namespace firecheck
