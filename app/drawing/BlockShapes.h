#pragma once

#include "drawing/DrawnShape.h"

#include <map>
#include <string>

namespace firecheck {

/// What inserted blocks look like when each of them is one element. Every block is measured once.
class BlockShapes {
public:
    /// The drawing must outlive this. `fileName` starts what is said of blocks that hold themselves.
    BlockShapes(const DxfDrawing& drawing, std::string fileName)
        : m_drawing(drawing), m_fileName(std::move(fileName)) {}

    /// Nothing for a block that is not there, and for one that `map` distorts.
    std::optional<DrawnShape> symbol(const DxfEntity& entity, const PlaneMap& map, int column, int row);

private:
    /// In the block's own coordinates.
    struct Measured {
        hrx::CBox2d box;
        bool hasOutline = false;
        bool isRectangle = false; ///< the outline, along the block's axes
        DrawnShape outline;       ///< the largest closed shape
        double area = 0.0;
    };

    const Measured& measured(const std::string& key, const DxfBlock& block, int depth);
    void addEntity(const DxfEntity& entity, Measured& measured, int depth);
    void addInsert(const DxfEntity& entity, const DxfInsert& insert, Measured& measured, int depth);

    const DxfDrawing& m_drawing;
    const std::string m_fileName;
    std::map<std::string, Measured> m_measured;
};

} // namespace firecheck
