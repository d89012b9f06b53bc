#pragma once

#include "drawing/BlockSearch.h"
#include "drawing/BlockShapes.h"
#include "drawing/DrawingTally.h"
#include "drawing/DrawingWalk.h"
#include "drawing/DrawnElement.h"
#include "drawing/EntityMeanings.h"

#include <string>
#include <vector>

namespace firecheck {

/// Finds the elements and texts of a drawing.
class SiteBuilder : public DrawingVisitor {
public:
    /// `maps` stand in the order in which they are asked.
    SiteBuilder(const DxfDrawing& drawing, const std::string& fileName, std::vector<const LayerMap*> maps,
                double millimetresPerUnit);

    InsertUse takeInsert(const PlacedEntity& insert) override;
    void leaveParts() override { m_wholes.pop_back(); }
    void take(const PlacedEntity& entity) override;
    void passOver(const PlacedEntity& entity, const std::string& reason) override;

    /// Makes outlines of the lines that nothing else was made of. To be called after the walk.
    void joinLines();

    std::vector<DrawnElement>& elements() { return m_elements; }
    const std::vector<DrawnText>& texts() const { return m_texts; }
    DrawingTally& tally() { return m_tally; }
    /// What the drawing says of the site as a whole.
    const Json& siteValues() const { return m_siteValues; }

private:
    /// A line that may be a part of an outline.
    struct LooseLine {
        DrawnShape shape;
        EntityMeaning meaning;
        const DxfEntity* entity;
        std::string layer;
    };

    bool mayBePart(const DxfEntity& entity);
    InsertUse takeWhole(const PlacedEntity& insert, const EntityMeaning& meaning);
    /// Whether it lies in a block that is one element, and means nothing else.
    bool isOfWhole(const DxfEntity& entity, const EntityMeaning& meaning) const;
    /// Whether it lies in a block that is one element, and is none of the site: things stand in houses, but
    /// the walls and doors of houses are not those of the site.
    bool isLostInWhole(const EntityMeaning& meaning) const;
    void takeShape(const PlacedEntity& placed, const EntityMeaning& meaning);
    /// False for a shape that the element cannot have.
    bool addElements(const DrawnShape& shape, const EntityMeaning& meaning, const DxfEntity& entity,
                     const std::string& layer);
    /// What the entity itself gives beside its place.
    Json givenValues(const EntityMeaning& meaning, const DrawnShape& shape, const DxfEntity& entity);
    void tellUnknownClass(const EntityMeaning& meaning, const DxfEntity& entity);
    void addText(const PlacedEntity& placed, const DxfText& text);

    const double m_millimetresPerUnit;
    LayerStates m_layers;
    EntityMeanings m_meanings;
    BlockShapes m_blocks;
    BlockSearch m_parts;                      ///< texts, and what has a meaning of its own
    std::vector<const ElementKeys*> m_wholes; ///< of the blocks that are one element, in which the walk is
    std::vector<DrawnElement> m_elements;
    std::vector<DrawnText> m_texts;
    std::vector<LooseLine> m_looseLines;
    DrawingTally m_tally;
    Json m_siteValues = Json::object();
};

} // namespace firecheck
