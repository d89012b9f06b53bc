#pragma once

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

    bool takeInsert(const PlacedEntity& insert) override;
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

    /// False for a shape that the element cannot have.
    bool addElements(const DrawnShape& shape, const EntityMeaning& meaning, const DxfEntity& entity,
                     const std::string& layer);
    /// What the entity itself gives beside its place.
    Json givenValues(const EntityMeaning& meaning, const DrawnShape& shape, const DxfEntity& entity);
    void tellUnknownClass(const EntityMeaning& meaning, const DxfEntity& entity);
    void addText(const PlacedEntity& placed, const DxfText& text);

    const double m_millimetresPerUnit;
    EntityMeanings m_meanings;
    BlockShapes m_blocks;
    std::vector<DrawnElement> m_elements;
    std::vector<DrawnText> m_texts;
    std::vector<LooseLine> m_looseLines;
    DrawingTally m_tally;
    Json m_siteValues = Json::object();
};

} // namespace firecheck
