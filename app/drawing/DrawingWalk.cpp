#include "drawing/DrawingWalk.h"

#include "drawing/BlockSearch.h"
#include "drawing/DrawnShape.h"
#include "drawing/LayerStates.h"
#include "drawing/block_nesting.h"
#include "drawing/dxf/refuse_drawing.h"
#include "text/words.h"

namespace firecheck {

namespace {

constexpr std::size_t kMostVisits = 3000000;

class Walk {
public:
    Walk(const DxfDrawing& drawing, const std::string& fileName, DrawingVisitor& visitor)
        : m_drawing(drawing), m_fileName(fileName), m_visitor(visitor), m_layers(drawing),
          m_shown(drawing, [this](const DxfEntity& entity) { return showsByItself(entity); }) {}

    void visitAll(const std::vector<DxfEntity>& entities, const PlaneMap& map,
                  const std::string* outerLayer) {
        for (const DxfEntity& entity : entities) {
            const bool takesOuterLayer = outerLayer && entity.layer == kBlockLayer;
            const PlacedEntity placed{entity, map, takesOuterLayer ? *outerLayer : entity.layer,
                                      outerLayer != nullptr};
            count(entity);
            if (entity.isInPaperSpace)
                m_visitor.passOver(placed, filled(Words::tr("it is in paper space")));
            else if (isHidden(placed))
                m_visitor.passOver(placed,
                                   filled(Words::tr("it is invisible, or its layer is off or frozen")));
            else if (const auto* insert = std::get_if<DxfInsert>(&entity.shape))
                visitInsert(placed, *insert);
            else
                m_visitor.take(placed);
        }
    }

private:
    /// Whether an entity of a block is seen though its insert is on a layer that is off.
    bool showsByItself(const DxfEntity& entity) {
        return !std::holds_alternative<DxfInsert>(entity.shape) && entity.layer != kBlockLayer &&
               !m_layers.isHidden(entity.layer);
    }

    bool isHidden(const PlacedEntity& placed) {
        const DxfEntity& entity = placed.entity;
        if (entity.isInvisible || m_layers.isFrozen(placed.layer))
            return true;
        const auto* insert = std::get_if<DxfInsert>(&entity.shape);
        return m_layers.isHidden(placed.layer) && !(insert && m_shown.finds(*insert));
    }

    void count(const DxfEntity& entity) {
        if (++m_visits > kMostVisits)
            refuseDrawing(m_fileName, entity.line,
                          filled(Words::tr("expected blocks that come to at most %1 entities"), kMostVisits));
    }

    void visitInsert(const PlacedEntity& placed, const DxfInsert& insert) {
        const auto block = m_drawing.blocks.find(dxfNameKey(insert.block));
        for (int row = 0; row < insert.rows; ++row)
            for (int column = 0; column < insert.columns; ++column) {
                count(placed.entity);
                if (block != m_drawing.blocks.end())
                    visitCell({placed.entity, placed.map, placed.layer, placed.isInBlock, column, row},
                              insert, block->second);
                else
                    m_visitor.passOver(placed, filled(Words::tr("its block is not in the drawing")));
            }
    }

    void visitCell(const PlacedEntity& placed, const DxfInsert& insert, const DxfBlock& block) {
        const InsertUse use = m_visitor.takeInsert(placed);
        if (use == InsertUse::TakenApart)
            visitApart(placed, insert, block);
        else if (use == InsertUse::WholeAndParts) {
            visitBlock(placed, insert, block);
            m_visitor.leaveParts();
        }
    }

    void visitApart(const PlacedEntity& placed, const DxfInsert& insert, const DxfBlock& block) {
        if (block.isExternal) {
            m_visitor.passOver(placed, filled(Words::tr("it refers to another drawing")));
            return;
        }
        if (placed.entity.facing == DxfFacing::Tilted) {
            m_visitor.passOver(placed, filled(Words::tr("it does not lie in the plan")));
            return;
        }
        visitBlock(placed, insert, block);
    }

    void visitBlock(const PlacedEntity& placed, const DxfInsert& insert, const DxfBlock& block) {
        if (m_depth == kDeepestBlock)
            refuseDrawing(m_fileName, placed.entity.line, tooDeepBlock());
        ++m_depth;
        visitAll(block.entities,
                 placed.map.after(ownPlane(placed.entity))
                     .after(insertPlane(insert, block, placed.column, placed.row)),
                 &placed.layer);
        --m_depth;
    }

    const DxfDrawing& m_drawing;
    const std::string& m_fileName;
    DrawingVisitor& m_visitor;
    LayerStates m_layers;
    BlockSearch m_shown; ///< what shows by itself
    std::size_t m_visits = 0;
    int m_depth = 0;
};

} // namespace

void walkDrawing(const DxfDrawing& drawing, const std::string& fileName, const PlaneMap& map,
                 DrawingVisitor& visitor) {
    Walk(drawing, fileName, visitor).visitAll(drawing.entities, map, nullptr);
}

} // namespace firecheck
