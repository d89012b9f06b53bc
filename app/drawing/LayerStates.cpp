#include "drawing/LayerStates.h"

namespace firecheck {

const DxfLayer& LayerStates::state(const std::string& layer) {
    auto known = m_known.find(layer);
    if (known == m_known.end()) {
        const auto row = m_drawing.layers.find(dxfNameKey(layer));
        known = m_known.emplace(layer, row == m_drawing.layers.end() ? DxfLayer() : row->second).first;
    }
    return known->second;
}

} // namespace firecheck
