#pragma once

#include "drawing/dxf/DxfDrawing.h"

#include <functional>
#include <map>
#include <string>

namespace firecheck {

/// Which blocks hold a wanted entity, themselves or in blocks that are inserted in them. Most hold none, and
/// need not be walked through wherever they are inserted.
class BlockSearch {
public:
    using IsWanted = std::function<bool(const DxfEntity&)>;

    /// The drawing must outlive this.
    BlockSearch(const DxfDrawing& drawing, IsWanted isWanted)
        : m_drawing(drawing), m_isWanted(std::move(isWanted)) {}

    /// Whether the insert's block holds one; true as well for one that holds blocks too deep to be searched.
    bool finds(const DxfInsert& insert) { return finds(insert, 0); }

private:
    bool finds(const DxfInsert& insert, int depth);

    const DxfDrawing& m_drawing;
    const IsWanted m_isWanted;
    std::map<std::string, bool> m_known;
};

} // namespace firecheck
