#include "drawing/SiteBuilder.h"

#include "InputError.h"
#include "drawing/dxf/refuse_drawing.h"
#include "drawing/exported_data.h"
#include "drawing/join_lines.h"
#include "drawing/json_number.h"
#include "json/parse_json.h"
#include "text/words.h"

#include <QString>

#include <cmath>
#include <limits>

namespace firecheck {

namespace {

std::string hexadecimal(std::uint64_t handle) {
    return handle == 0 ? std::string() : QString::number(handle, 16).toUpper().toStdString();
}

std::string reasonOfShape() {
    return filled(Words::tr("elements of this kind are not drawn so"));
}

/// "use=office" in extended data is what an attribute is.
DxfAttribute attributeOf(const std::string& string, int line) {
    const auto equals = string.find('=');
    if (equals == std::string::npos)
        return {string, {}, line};
    return {string.substr(0, equals), string.substr(equals + 1), line};
}

} // namespace

SiteBuilder::SiteBuilder(const DxfDrawing& drawing, std::string fileName, std::vector<const LayerMap*> maps,
                         double millimetresPerUnit)
    : m_drawing(drawing), m_fileName(std::move(fileName)), m_maps(std::move(maps)),
      m_millimetresPerUnit(millimetresPerUnit),
      m_blocks(drawing, m_fileName, [this](const DxfEntity& entity) { return isIgnoredInBlock(entity); }) {}

void SiteBuilder::readExtendedData(const DxfEntity& entity, Meaning& meaning) const {
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

void SiteBuilder::readAttributes(const DxfInsert& insert, Meaning& meaning) const {
    meaning.attributes.insert(meaning.attributes.end(), insert.attributes.begin(), insert.attributes.end());
    const auto block = m_drawing.blocks.find(dxfNameKey(insert.block));
    if (block == m_drawing.blocks.end())
        return;
    for (const DxfEntity& entity : block->second.entities)
        if (const auto* definition = std::get_if<DxfAttributeDefinition>(&entity.shape))
            if (definition->isConstant)
                meaning.attributes.push_back(definition->attribute);
}

const ElementKeys* SiteBuilder::givenClass(const std::vector<DxfAttribute>& attributes) const {
    for (const DxfAttribute& attribute : attributes) {
        bool isClass = nameKey(attribute.tag) == "CLASS";
        for (const LayerMap* map : m_maps)
            for (const std::string& key : map->keysOfAttribute(attribute.tag))
                isClass = isClass || key == "class";
        const ElementKeys* const keys = isClass ? ElementKeys::ofClass(attribute.value) : nullptr;
        if (keys)
            return keys;
    }
    return nullptr;
}

const LayerRow* SiteBuilder::rowOf(const PlacedEntity& placed, bool& isOfLayerOnly) {
    const auto rows = [this](
        std::map<std::string, std::vector<const LayerRow*>> & known, const std::string& name,
        const LayerRow* (LayerMap::*rowOfName)(const std::string&) const) -> const auto& {
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

SiteBuilder::Meaning SiteBuilder::meaningOf(const PlacedEntity& placed) {
    Meaning meaning;
    readExtendedData(placed.entity, meaning);
    if (meaning.isExported)
        return meaning;
    if (const auto* insert = std::get_if<DxfInsert>(&placed.entity.shape))
        readAttributes(*insert, meaning);
    meaning.keys = givenClass(meaning.attributes);
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

bool SiteBuilder::isIgnoredInBlock(const DxfEntity& entity) {
    const PlaneMap map;
    const Meaning meaning = meaningOf({entity, map, entity.layer});
    const bool isByLayerOfInsert = meaning.isOfLayerOnly && entity.layer == kBlockLayer;
    return meaning.isIgnored && !isByLayerOfInsert;
}

bool SiteBuilder::takeInsert(const PlacedEntity& insert) {
    const Meaning meaning = meaningOf(insert);
    if (meaning.isIgnored)
        return true;
    if (!meaning.keys)
        return false;
    // An arrow on a road's layer is no road.
    const bool isOfLines =
        meaning.keys->plan() == ElementPlan::Route || meaning.keys->plan() == ElementPlan::Wall;
    if (meaning.isOfLayerOnly && isOfLines)
        return false;
    const auto shape = m_blocks.symbol(insert.entity, insert.map, insert.column, insert.row);
    if (!shape)
        passOver(insert, filled(Words::tr("it does not lie in the plan, or its scale distorts it")));
    else if (!addElements(*shape, meaning, insert.entity, insert.layer))
        passOver(insert, reasonOfShape());
    return true;
}

void SiteBuilder::take(const PlacedEntity& placed) {
    const DxfEntity& entity = placed.entity;
    if (std::holds_alternative<DxfAttributeDefinition>(entity.shape))
        return; // a form without values
    const Meaning meaning = meaningOf(placed);
    if (meaning.isIgnored)
        return;
    if (meaning.isExported && !meaning.keys) {
        m_siteValues = meaning.data.at(kSiteDataKey);
        return;
    }
    if (const auto* text = std::get_if<DxfText>(&entity.shape)) {
        addText(placed, *text);
        return;
    }
    if (!meaning.keys) {
        passOver(placed, filled(Words::tr("nothing tells what it is")));
        return;
    }
    if (std::holds_alternative<DxfOther>(entity.shape)) {
        passOver(placed, filled(Words::tr("such entities are not read")));
        return;
    }
    const auto shape = drawnShape(entity, placed.map);
    if (!shape) {
        passOver(placed, filled(Words::tr("it does not lie in the plan, or its scale distorts it")));
        return;
    }
    const ElementPlan plan = meaning.keys->plan();
    const bool mayBePart = shape->kind == DrawnShape::Kind::Path && !meaning.isExported &&
                           (plan == ElementPlan::Footprint || plan == ElementPlan::Box);
    if (mayBePart)
        m_looseLines.push_back({*shape, meaning, &entity, placed.layer});
    else if (!addElements(*shape, meaning, entity, placed.layer))
        passOver(placed, reasonOfShape());
}

void SiteBuilder::passOver(const PlacedEntity& placed, const std::string& reason) {
    bool isOfLayerOnly = false;
    const LayerRow* const row = rowOf(placed, isOfLayerOnly);
    if (!row || !row->isIgnored())
        m_tally.passOver(placed.entity.type, placed.layer, reason, placed.entity.line);
}

void SiteBuilder::addText(const PlacedEntity& placed, const DxfText& text) {
    const auto at = placed.map.after(ownPlane(placed.entity))({text.at.x, text.at.y});
    if (!text.text.empty())
        m_texts.push_back({at, text.height * hrx::length(placed.map.yAxis), text.text, placed.layer,
                           placed.entity.type, placed.entity.line});
}

Json SiteBuilder::givenValues(const Meaning& meaning, const DrawnShape& shape, const DxfEntity& entity) {
    Json values = {{"class", meaning.keys->siteClass().name}};
    if (shape.width > 0.0 && meaning.keys->has("width"))
        values["width"] = std::llround(shape.width);
    const auto* insert = std::get_if<DxfInsert>(&entity.shape);
    // Extended data stand first and go before what follows.
    std::map<std::string, bool> isGiven;
    for (const DxfAttribute& attribute : meaning.attributes) {
        const std::string key = meaning.keys->keyOf(attribute.tag, m_maps);
        if (key.empty())
            m_tally.passOverAttribute(attribute.tag, insert ? insert->block : entity.type, attribute.line);
        else if (key != "class" && key != "handle" && !attribute.value.empty() && !isGiven[key]) {
            values[key] = meaning.keys->valueOf(key, attribute.value, m_millimetresPerUnit, m_maps);
            isGiven[key] = true;
        }
    }
    return values;
}

bool SiteBuilder::addElements(const DrawnShape& shape, const Meaning& meaning, const DxfEntity& entity,
                              const std::string& layer) {
    const ElementPlan plan = meaning.keys->plan();
    std::vector<Json> geometries = elementGeometry(
        plan, shape, meaning.isExported ? LengthRuns::AlongFirstEdge : LengthRuns::AlongLongerSide);
    if (geometries.empty() && meaning.isExported)
        geometries.push_back(Json::object()); // its data say where it is, if anything does
    if (geometries.empty())
        return false;
    const Json values = meaning.isExported ? Json() : givenValues(meaning, shape, entity);
    for (const Json& geometry : geometries) {
        DrawnElement element;
        element.keys = meaning.keys;
        if (meaning.isExported)
            element.object = importedObject(meaning.data, geometry, polylineGeometry(shape));
        else {
            // What is drawn goes before what the table says of such elements.
            element.object = meaning.row ? meaning.row->values : Json::object();
            element.object.update(geometry);
            element.object.update(values);
        }
        element.origin = {entity.line, hexadecimal(entity.handle), layer};
        element.isPart = &geometry != &geometries.front();
        element.isExported = meaning.isExported;
        element.isAtSymbol = shape.kind == DrawnShape::Kind::Symbol || shape.kind == DrawnShape::Kind::Mark;
        element.symbolDepth = shape.depth;
        const bool fits = entity.handle <= std::uint64_t(std::numeric_limits<std::int64_t>::max());
        element.handle = fits ? std::int64_t(entity.handle) : 0;
        const auto given = element.object.find("handle");
        if (given != element.object.end() && given->is_number_integer()) {
            element.exportedHandle = given->get<std::int64_t>();
            element.object.erase("handle");
        }
        m_elements.push_back(std::move(element));
    }
    return true;
}

void SiteBuilder::joinLines() {
    std::map<std::pair<std::string, const ElementKeys*>, std::vector<std::size_t>> groups;
    for (std::size_t i = 0; i < m_looseLines.size(); ++i)
        groups[{m_looseLines[i].layer, m_looseLines[i].meaning.keys}].push_back(i);
    for (const auto& [what, members] : groups) {
        std::vector<const DrawnShape*> shapes;
        for (const std::size_t member : members)
            shapes.push_back(&m_looseLines[member].shape);
        std::vector<bool> isUsed(members.size(), false);
        for (const JoinedOutline& outline : joinedOutlines(shapes)) {
            const LooseLine& first = m_looseLines[members[outline.members.front()]];
            DrawnShape shape;
            shape.kind = DrawnShape::Kind::Outline;
            shape.vertices = outline.vertices;
            if (addElements(shape, first.meaning, *first.entity, first.layer))
                for (const std::size_t member : outline.members)
                    isUsed[member] = true;
        }
        for (std::size_t i = 0; i < members.size(); ++i) {
            const LooseLine& line = m_looseLines[members[i]];
            if (!isUsed[i])
                m_tally.passOver(line.entity->type, line.layer, filled(Words::tr("it closes no outline")),
                                 line.entity->line);
        }
    }
    m_looseLines.clear();
}

} // namespace firecheck
