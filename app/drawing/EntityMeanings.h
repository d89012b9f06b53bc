#pragma once

#include "drawing/DrawingWalk.h"
#include "drawing/ElementKeys.h"
#include "drawing/LayerMap.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace firecheck {

/// What an entity is, before its shape is looked at.
struct EntityMeaning {
    const ElementKeys* keys = nullptr; ///< null when nothing says it
    bool isIgnored = false;
    bool isOfLayerOnly = false;
    bool isExported = false;
    Json data; ///< of the exporter
    const LayerRow* row = nullptr;
    std::vector<DxfAttribute> attributes; ///< and the extended data that are like them
    /// What should have been a class and is none.
    std::optional<DxfAttribute> unknownClass;

    /// Whether an entity of a block means something but for the layer of the insert, which "0" stands for.
    bool hasOwnMeaning(const DxfEntity& entity) const {
        return keys && !(isOfLayerOnly && entity.layer == kBlockLayer);
    }
};

/// Tells what entities mean by their extended data, their attributes and the tables of layers and blocks.
class EntityMeanings {
public:
    /// The drawing and the maps must outlive this. `maps` stand in the order in which they are asked,
    /// `fileName` starts what is said of wrong extended data.
    EntityMeanings(const DxfDrawing& drawing, std::string fileName, std::vector<const LayerMap*> maps)
        : m_drawing(drawing), m_fileName(std::move(fileName)), m_maps(std::move(maps)) {}

    /// Throws InputError for extended data of the exporter that make no sense.
    EntityMeaning of(const PlacedEntity& placed);
    /// Whether an entity of a block that is one element does not count for it.
    bool isIgnoredInBlock(const DxfEntity& entity);
    /// Whether a table says that such entities are no part of the site.
    bool isIgnoredByTable(const PlacedEntity& placed);

    const std::vector<const LayerMap*>& maps() const { return m_maps; }

private:
    /// One row for each map, by the name of a layer or a block.
    using Rows = std::map<std::string, std::vector<const LayerRow*>>;

    void readExtendedData(const DxfEntity& entity, EntityMeaning& meaning) const;
    void readAttributes(const DxfInsert& insert, EntityMeaning& meaning) const;
    void readClass(EntityMeaning& meaning) const;
    const LayerRow* rowOf(const PlacedEntity& placed, bool& isOfLayerOnly);

    const DxfDrawing& m_drawing;
    const std::string m_fileName;
    const std::vector<const LayerMap*> m_maps;
    Rows m_layerRows;
    Rows m_blockRows;
};

} // namespace firecheck
