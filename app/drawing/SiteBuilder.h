#pragma once

#include "drawing/BlockShapes.h"
#include "drawing/DrawingTally.h"
#include "drawing/DrawingWalk.h"
#include "drawing/DrawnElement.h"
#include "drawing/LayerMap.h"

#include <map>
#include <string>
#include <vector>

namespace firecheck {

/// Finds the elements and texts of a drawing.
class SiteBuilder : public DrawingVisitor {
public:
    /// `maps` stand in the order in which they are asked.
    SiteBuilder(const DxfDrawing& drawing, std::string fileName, std::vector<const LayerMap*> maps,
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
    /// What an entity is, before its shape is looked at.
    struct Meaning {
        const ElementKeys* keys = nullptr; ///< null when nothing says it
        bool isIgnored = false;
        bool isOfLayerOnly = false;
        bool isExported = false;
        Json data; ///< of the exporter
        const LayerRow* row = nullptr;
        std::vector<DxfAttribute> attributes; ///< and the extended data that are like them
    };
    /// A line that may be a part of an outline.
    struct LooseLine {
        DrawnShape shape;
        Meaning meaning;
        const DxfEntity* entity;
        std::string layer;
    };

    Meaning meaningOf(const PlacedEntity& placed);
    /// Whether an entity of a block that is one element does not count for it.
    bool isIgnoredInBlock(const DxfEntity& entity);
    void readExtendedData(const DxfEntity& entity, Meaning& meaning) const;
    void readAttributes(const DxfInsert& insert, Meaning& meaning) const;
    const LayerRow* rowOf(const PlacedEntity& placed, bool& isOfLayerOnly);
    const ElementKeys* givenClass(const std::vector<DxfAttribute>& attributes) const;

    /// False for a shape that the element cannot have.
    bool addElements(const DrawnShape& shape, const Meaning& meaning, const DxfEntity& entity,
                     const std::string& layer);
    /// What the entity itself gives beside its place.
    Json givenValues(const Meaning& meaning, const DrawnShape& shape, const DxfEntity& entity);
    void addText(const PlacedEntity& placed, const DxfText& text);

    const DxfDrawing& m_drawing;
    const std::string m_fileName;
    const std::vector<const LayerMap*> m_maps;
    const double m_millimetresPerUnit;
    BlockShapes m_blocks;
    std::map<std::string, std::vector<const LayerRow*>> m_layerRows; ///< by layer, one for each map
    std::map<std::string, std::vector<const LayerRow*>> m_blockRows;
    std::vector<DrawnElement> m_elements;
    std::vector<DrawnText> m_texts;
    std::vector<LooseLine> m_looseLines;
    DrawingTally m_tally;
    Json m_siteValues = Json::object();
};

} // namespace firecheck
