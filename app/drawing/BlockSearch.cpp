#include "drawing/BlockSearch.h"

#include "drawing/block_nesting.h"

#include <algorithm>

namespace firecheck {

bool BlockSearch::finds(const DxfInsert& insert, int depth) {
    if (depth > kDeepestBlock)
        return true;
    const auto block = m_drawing.blocks.find(dxfNameKey(insert.block));
    if (block == m_drawing.blocks.end())
        return false;
    // Entered before its entities are asked, lest a block that holds itself is asked for ever.
    const auto [known, isNew] = m_known.emplace(block->first, false);
    const auto& entities = block->second.entities;
    if (isNew)
        known->second = std::any_of(entities.begin(), entities.end(), [this, depth](const DxfEntity& entity) {
            const auto* inner = std::get_if<DxfInsert>(&entity.shape);
            return m_isWanted(entity) || (inner && finds(*inner, depth + 1));
        });
    return known->second;
}

} // namespace firecheck
