#include "drawing/LayerStates.h"

namespace firecheck {

bool LayerStates::isHidden(const std::string& layer) {
    auto known = m_hidden.find(layer);
    if (known == m_hidden.end()) {
        const auto row = m_drawing.layers.find(dxfNameKey(layer));
        known = m_hidden.emplace(layer, row != m_drawing.layers.end() && row->second.isHidden).first;
    }
    return known->second;
}

} // namespace firecheck
