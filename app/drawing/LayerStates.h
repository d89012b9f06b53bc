#pragma once

#include "drawing/dxf/DxfDrawing.h"

#include <map>
#include <string>

namespace firecheck {

/// What the table of layers says of each layer, by its name as entities have it.
class LayerStates {
public:
    /// The drawing must outlive this.
    explicit LayerStates(const DxfDrawing& drawing) : m_drawing(drawing) {}

    /// A layer that the table lacks is seen.
    bool isHidden(const std::string& layer);

private:
    const DxfDrawing& m_drawing;
    std::map<std::string, bool> m_hidden;
};

} // namespace firecheck
