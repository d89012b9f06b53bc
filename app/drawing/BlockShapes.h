#pragma once

#include "drawing/DrawnShape.h"
#include "drawing/LayerStates.h"

#include <functional>
#include <map>
#include <string>

namespace firecheck {

/// What inserted blocks look like when each of them is one element. Every block is measured once. What does
/// not count elsewhere in a drawing does not count in a block either.
class BlockShapes {
public:
    /// Whether an entity of a block is no part of the site.
    using IsIgnored = std::function<bool(const DxfEntity&)>;

    /// The drawing must outlive this. `fileName` starts what is said of blocks that hold themselves.
    BlockShapes(const DxfDrawing& drawing, std::string fileName, IsIgnored isIgnored)
        : m_drawing(drawing), m_fileName(std::move(fileName)), m_isIgnored(std::move(isIgnored)),
          m_layers(drawing) {}

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

    /// By the entity's own layer: that of the insert, which "0" stands for, is seen.
    bool counts(const DxfEntity& entity);
    const Measured& measured(const std::string& key, const DxfBlock& block, int depth);
    void addEntity(const DxfEntity& entity, Measured& measured, int depth);
    void addInsert(const DxfEntity& entity, const DxfInsert& insert, Measured& measured, int depth);

    const DxfDrawing& m_drawing;
    const std::string m_fileName;
    const IsIgnored m_isIgnored;
    LayerStates m_layers;
    std::map<std::string, Measured> m_measured;
};

} // namespace firecheck
