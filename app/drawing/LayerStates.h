#pragma once

#include "drawing/dxf/DxfDrawing.h"

#include <map>
#include <string>

namespace firecheck {

/// What the table of layers says of each layer, by its name as entities have it. A layer that the table lacks
/// is seen.
class LayerStates {
public:
    /// The drawing must outlive this.
    explicit LayerStates(const DxfDrawing& drawing) : m_drawing(drawing) {}

    bool isFrozen(const std::string& layer) { return state(layer).isFrozen; }
    /// Whether it is off or frozen.
    bool isHidden(const std::string& layer) { return state(layer).isFrozen || state(layer).isOff; }

private:
    const DxfLayer& state(const std::string& layer);

    const DxfDrawing& m_drawing;
    std::map<std::string, DxfLayer> m_known;
};

} // namespace firecheck
