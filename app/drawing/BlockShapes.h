#pragma once

#include "drawing/DrawingWalk.h"
#include "drawing/DrawnShape.h"
#include "drawing/LayerStates.h"

#include <functional>
#include <map>
#include <string>

namespace firecheck {

/// What inserted blocks look like when each of them is one element. Every block is measured once, and once
/// more for inserts on hidden layers. What does not count elsewhere in a drawing does not count in a block
/// either.
class BlockShapes {
public:
    /// Whether an entity of a block is no part of the site.
    using IsIgnored = std::function<bool(const DxfEntity&)>;

    /// The drawing must outlive this. `fileName` starts what is said of blocks that hold themselves.
    BlockShapes(const DxfDrawing& drawing, std::string fileName, IsIgnored isIgnored)
        : m_drawing(drawing), m_fileName(std::move(fileName)), m_isIgnored(std::move(isIgnored)),
          m_layers(drawing) {}

    /// What an insert looks like. Nothing for a block that is not there, and for one that its map distorts.
    std::optional<DrawnShape> symbol(const PlacedEntity& placed);

private:
    /// In the block's own coordinates.
    struct Measured {
        hrx::CBox2d box;
        bool hasOutline = false;
        bool isRectangle = false; ///< the outline, along the block's axes
        DrawnShape outline;       ///< the largest closed shape
        double area = 0.0;
    };

    /// How a block is looked at.
    struct View {
        bool isOuterLayerSeen; ///< that of the insert, which "0" stands for
        int depth;
    };

    bool isSeen(const std::string& layer, const View& view);
    bool counts(const DxfEntity& entity, const View& view);
    const Measured& measured(const std::string& key, const DxfBlock& block, const View& view);
    void addEntity(const DxfEntity& entity, Measured& measured, const View& view);
    void addInsert(const DxfEntity& entity, const DxfInsert& insert, Measured& measured, const View& view);

    const DxfDrawing& m_drawing;
    const std::string m_fileName;
    const IsIgnored m_isIgnored;
    LayerStates m_layers;
    std::map<std::pair<std::string, bool>, Measured> m_measured; ///< by block and View::isOuterLayerSeen
};

} // namespace firecheck
