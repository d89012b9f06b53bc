#include "drawing/EntityMeanings.h"

#include "InputError.h"
#include "drawing/dxf/refuse_drawing.h"
#include "drawing/exported_data.h"
#include "json/parse_json.h"
#include "text/words.h"

namespace firecheck {

namespace {

/// "use=office" in extended data is what an attribute is.
DxfAttribute attributeOf(const std::string& string, int line) {
    const auto equals = string.find('=');
    if (equals == std::string::npos)
        return {string, {}, line};
    return {string.substr(0, equals), string.substr(equals + 1), line};
}

} // namespace

void EntityMeanings::readExtendedData(const DxfEntity& entity, EntityMeaning& meaning) const {
    const auto& strings = entity.extendedData;
    if (strings.empty())
        return;
    if (strings.front().rfind('{', 0) != 0) {
        for (const std::string& string : strings)
            meaning.attributes.push_back(attributeOf(string, entity.line));
        return;
    }
    std::string text;
    for (const std::string& string : strings)
        text += string;
    const auto fail = [&](const std::string& reason) {
        refuseDrawing(m_fileName, entity.line,
                      filled(Words::tr("extended data of the %1: %2"), entity.type, reason));
    };
    try {
        meaning.data = parseJson(text, "JSON");
    } catch (const InputError& error) {
        fail(error.what());
    }
    const auto name = meaning.data.find("class");
    if (meaning.data.contains(kSiteDataKey) && meaning.data[kSiteDataKey].is_object()) {
        meaning.isExported = true;
        return;
    }
    if (name == meaning.data.end() || !name->is_string() || !ElementKeys::ofClass(name->get<std::string>()))
        fail(filled(Words::tr("expected the \"class\" of an object of site files")));
    if (meaning.data.contains(kDrawnKey) && !meaning.data[kDrawnKey].is_object())
        fail(filled(Words::tr("expected an object for \"%1\""), kDrawnKey));
    meaning.keys = ElementKeys::ofClass(name->get<std::string>());
    meaning.isExported = true;
}

void EntityMeanings::readAttributes(const DxfInsert& insert, EntityMeaning& meaning) const {
    meaning.attributes.insert(meaning.attributes.end(), insert.attributes.begin(), insert.attributes.end());
    const auto block = m_drawing.blocks.find(dxfNameKey(insert.block));
    if (block == m_drawing.blocks.end())
        return;
    for (const DxfEntity& entity : block->second.entities)
        if (const auto* definition = std::get_if<DxfAttributeDefinition>(&entity.shape))
            if (definition->isConstant)
                meaning.attributes.push_back(definition->attribute);
}

/// The first attribute that names a class gives it. A word of the planner's that names none, as "类型" may
/// have one, is no mistake; a CLASS is.
void EntityMeanings::readClass(EntityMeaning& meaning) const {
    for (const DxfAttribute& attribute : meaning.attributes) {
        const bool isOwnTag = nameKey(attribute.tag) == "CLASS";
        bool isClass = isOwnTag;
        for (const LayerMap* map : m_maps)
            for (const std::string& key : map->keysOfAttribute(attribute.tag))
                isClass = isClass || key == "class";
        if (!isClass || attribute.value.empty())
            continue;
        const ElementKeys* const keys = ElementKeys::ofText(attribute.value);
        meaning.keys = meaning.keys ? meaning.keys : keys;
        if (!keys && isOwnTag && !meaning.unknownClass)
            meaning.unknownClass = attribute;
    }
}

const LayerRow* EntityMeanings::rowOf(const PlacedEntity& placed, bool& isOfLayerOnly) {
    const auto rows = [this](Rows & known, const std::string& name,
                             const LayerRow* (LayerMap::*rowOfName)(const std::string&)
                                 const) -> const auto& {
        auto found = known.find(name);
        if (found == known.end()) {
            found = known.emplace(name, std::vector<const LayerRow*>()).first;
            for (const LayerMap* map : m_maps)
                found->second.push_back((map->*rowOfName)(name));
        }
        return found->second;
    };
    const auto& ofLayer = rows(m_layerRows, placed.layer, &LayerMap::rowOfLayer);
    const auto* insert = std::get_if<DxfInsert>(&placed.entity.shape);
    for (std::size_t i = 0; i < m_maps.size(); ++i) {
        const LayerRow* const ofBlock =
            insert ? rows(m_blockRows, insert->block, &LayerMap::rowOfBlock)[i] : nullptr;
        isOfLayerOnly = !ofBlock;
        if (ofBlock)
            return ofBlock;
        if (ofLayer[i])
            return ofLayer[i];
    }
    return nullptr;
}

EntityMeaning EntityMeanings::of(const PlacedEntity& placed) {
    EntityMeaning meaning;
    readExtendedData(placed.entity, meaning);
    if (meaning.isExported)
        return meaning;
    if (const auto* insert = std::get_if<DxfInsert>(&placed.entity.shape))
        readAttributes(*insert, meaning);
    readClass(meaning);
    const LayerRow* const row = rowOf(placed, meaning.isOfLayerOnly);
    if (!row)
        return meaning;
    if (row->isIgnored())
        meaning.isIgnored = !meaning.keys;
    else {
        const ElementKeys* const keys = ElementKeys::ofClass(row->values.at("class").get<std::string>());
        if (!meaning.keys || meaning.keys == keys) {
            meaning.row = row;
            meaning.isOfLayerOnly = meaning.isOfLayerOnly && !meaning.keys;
        } else
            meaning.isOfLayerOnly = false;
        meaning.keys = meaning.keys ? meaning.keys : keys;
    }
    return meaning;
}

bool EntityMeanings::isIgnoredInBlock(const DxfEntity& entity) {
    const PlaneMap map;
    const EntityMeaning meaning = of({entity, map, entity.layer});
    const bool isByLayerOfInsert = meaning.isOfLayerOnly && entity.layer == kBlockLayer;
    return meaning.isIgnored && !isByLayerOfInsert;
}

bool EntityMeanings::isIgnoredByTable(const PlacedEntity& placed) {
    bool isOfLayerOnly = false;
    const LayerRow* const row = rowOf(placed, isOfLayerOnly);
    return row && row->isIgnored();
}

} // namespace firecheck
