#include "drawing/SiteBuilder.h"

#include "drawing/exported_data.h"
#include "drawing/join_lines.h"
#include "drawing/json_number.h"
#include "text/words.h"

#include <QString>

#include <cmath>
#include <limits>

namespace firecheck {

namespace {

std::string hexadecimal(std::uint64_t handle) {
    return handle == 0 ? std::string() : QString::number(handle, 16).toUpper().toStdString();
}

std::string blockOrType(const DxfEntity& entity) {
    const auto* insert = std::get_if<DxfInsert>(&entity.shape);
    return insert ? insert->block : entity.type;
}

std::string reasonOfWhole() {
    return filled(Words::tr("it is part of a block that is one element"));
}

std::string reasonOfShape() {
    return filled(Words::tr("elements of this kind are not drawn so"));
}

} // namespace

SiteBuilder::SiteBuilder(const DxfDrawing& drawing, const std::string& fileName,
                         std::vector<const LayerMap*> maps, double millimetresPerUnit)
    : m_millimetresPerUnit(millimetresPerUnit), m_layers(drawing),
      m_meanings(drawing, fileName, std::move(maps)),
      m_blocks(drawing, fileName,
               [this](const DxfEntity& entity) { return m_meanings.isIgnoredInBlock(entity); }),
      m_parts(drawing, [this](const DxfEntity& entity) { return mayBePart(entity); }) {}

bool SiteBuilder::mayBePart(const DxfEntity& entity) {
    const PlaneMap map;
    return std::holds_alternative<DxfText>(entity.shape) ||
           m_meanings.of({entity, map, entity.layer}).hasOwnMeaning(entity);
}

bool SiteBuilder::isOfWhole(const DxfEntity& entity, const EntityMeaning& meaning) const {
    return !m_wholes.empty() && (!meaning.hasOwnMeaning(entity) || meaning.keys == m_wholes.back());
}

bool SiteBuilder::isLostInWhole(const EntityMeaning& meaning) const {
    return !m_wholes.empty() && meaning.keys->plan() != ElementPlan::Box;
}

InsertUse SiteBuilder::takeInsert(const PlacedEntity& insert) {
    const EntityMeaning meaning = m_meanings.of(insert);
    if (meaning.isIgnored)
        return InsertUse::Whole;
    if (isOfWhole(insert.entity, meaning))
        return InsertUse::TakenApart;
    tellUnknownClass(meaning, insert.entity);
    if (!meaning.keys)
        return InsertUse::TakenApart;
    if (isLostInWhole(meaning)) {
        passOver(insert, reasonOfWhole());
        return InsertUse::Whole;
    }
    // An arrow on a road's layer is no road.
    const bool isOfLines =
        meaning.keys->plan() == ElementPlan::Route || meaning.keys->plan() == ElementPlan::Wall;
    // A layer that is off says nothing of what shows all the same.
    const bool isOff = m_layers.isHidden(insert.layer);
    return meaning.isOfLayerOnly && (isOfLines || isOff) ? InsertUse::TakenApart : takeWhole(insert, meaning);
}

InsertUse SiteBuilder::takeWhole(const PlacedEntity& insert, const EntityMeaning& meaning) {
    const auto shape = m_blocks.symbol(insert);
    if (!shape)
        passOver(insert, filled(Words::tr("it does not lie in the plan, or its scale distorts it")));
    else if (!addElements(*shape, meaning, insert.entity, insert.layer))
        passOver(insert, reasonOfShape());
    else if (!meaning.isExported && m_parts.finds(std::get<DxfInsert>(insert.entity.shape))) {
        m_wholes.push_back(meaning.keys);
        return InsertUse::WholeAndParts;
    }
    return InsertUse::Whole;
}

void SiteBuilder::take(const PlacedEntity& placed) {
    const DxfEntity& entity = placed.entity;
    if (std::holds_alternative<DxfAttributeDefinition>(entity.shape))
        return; // a form without values
    const EntityMeaning meaning = m_meanings.of(placed);
    if (meaning.isIgnored)
        return;
    const auto* text = std::get_if<DxfText>(&entity.shape);
    if (!text && isOfWhole(entity, meaning))
        return;
    tellUnknownClass(meaning, entity);
    if (meaning.isExported && !meaning.keys)
        m_siteValues = meaning.data.at(kSiteDataKey);
    else if (text)
        addText(placed, *text);
    else if (!meaning.keys)
        passOver(placed, filled(Words::tr("nothing tells what it is")));
    else if (isLostInWhole(meaning))
        passOver(placed, reasonOfWhole());
    else
        takeShape(placed, meaning);
}

void SiteBuilder::takeShape(const PlacedEntity& placed, const EntityMeaning& meaning) {
    const DxfEntity& entity = placed.entity;
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
    const bool isDetail = !m_wholes.empty() && isOfWhole(placed.entity, m_meanings.of(placed));
    if (!isDetail && !m_meanings.isIgnoredByTable(placed))
        m_tally.passOver(placed.entity.type, placed.layer, reason, placed.entity.line);
}

void SiteBuilder::tellUnknownClass(const EntityMeaning& meaning, const DxfEntity& entity) {
    if (meaning.unknownClass)
        m_tally.passOverClass(meaning.unknownClass->value, blockOrType(entity), meaning.unknownClass->line);
}

void SiteBuilder::addText(const PlacedEntity& placed, const DxfText& text) {
    const auto at = placed.map.after(ownPlane(placed.entity))({text.at.x, text.at.y});
    if (!text.text.empty())
        m_texts.push_back({at, text.height * hrx::length(placed.map.yAxis), text.text, placed.layer,
                           placed.entity.type, placed.entity.line});
}

Json SiteBuilder::givenValues(const EntityMeaning& meaning, const DrawnShape& shape,
                              const DxfEntity& entity) {
    Json values = {{"class", meaning.keys->siteClass().name}};
    if (shape.width > 0.0 && meaning.keys->has("width"))
        values["width"] = std::llround(shape.width);
    // Extended data stand first and go before what follows.
    std::map<std::string, bool> isGiven;
    for (const DxfAttribute& attribute : meaning.attributes) {
        const std::string key = meaning.keys->keyOf(attribute.tag, m_meanings.maps());
        if (key.empty())
            m_tally.passOverAttribute(attribute.tag, blockOrType(entity), attribute.line);
        else if (key != "class" && key != "handle" && !attribute.value.empty() && !isGiven[key]) {
            values[key] =
                meaning.keys->valueOf(key, attribute.value, m_millimetresPerUnit, m_meanings.maps());
            isGiven[key] = true;
        }
    }
    return values;
}

bool SiteBuilder::addElements(const DrawnShape& shape, const EntityMeaning& meaning, const DxfEntity& entity,
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
