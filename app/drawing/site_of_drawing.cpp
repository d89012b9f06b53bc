#include "drawing/site_of_drawing.h"

#include "drawing/SiteBuilder.h"
#include "drawing/doubt_unit.h"
#include "drawing/dxf_units.h"
#include "site_file/site_keys.h"
#include "text/words.h"

#include <limits>
#include <set>

namespace firecheck {

namespace {

DrawingUnit unitOf(const DxfDrawing& drawing, const LayerMap* planners, DrawingTally& tally) {
    if (planners && planners->unit())
        return {planners->unit()->millimetres, planners->unit()->code};
    for (const DxfUnit& unit : dxfUnits())
        if (unit.code == drawing.units)
            return {unit.millimetres, unit.code};
    if (drawing.units != 0)
        tally.doubt(
            "doubtful-unit",
            filled(
                Words::tr("the drawing's unit has the number %1, which no unit of sites has; mm is assumed"),
                drawing.units),
            1);
    return {1.0, drawing.units == 0 ? 0 : 4};
}

/// Sets the values that are required and that nobody gave, where there is something to set.
void assumeValues(DrawnElement& element, const std::vector<const LayerMap*>& maps, DrawingTally& tally) {
    Json& object = element.object;
    if (element.isExported)
        return;
    const std::string& name = element.keys->siteClass().name;
    // The name of a closed house is its use in words.
    if (name == "closedHouse" && !object.contains("use") && object.contains("name"))
        object["use"] = object["name"];
    for (const std::string& key : element.keys->requiredKeys()) {
        const Json* value = nullptr;
        for (const LayerMap* map : maps)
            value = value ? value : map->assumed(name, key);
        if (!value || object.contains(key))
            continue;
        object[key] = *value;
        tally.assume(name, element.origin.layer, key,
                     value->is_string() ? value->get<std::string>() : value->dump(), element.origin.line);
    }
}

/// Gives each element a handle of its own: that of the object that was exported, or of its entity, where no
/// other has it. Of copies the one has it whose entity bears it.
void setHandles(std::vector<DrawnElement>& elements, std::uint64_t greatest, DrawingTally& tally) {
    constexpr std::uint64_t most = std::numeric_limits<std::int64_t>::max();
    std::set<std::int64_t> taken;
    std::vector<bool> isSet(elements.size(), false);
    const auto claim = [&](std::size_t i, std::int64_t handle) {
        if (isSet[i] || handle == 0 || elements[i].isPart || !taken.insert(handle).second)
            return;
        isSet[i] = true;
        elements[i].handle = handle;
    };
    for (std::size_t i = 0; i < elements.size(); ++i)
        if (elements[i].exportedHandle == 0 || elements[i].exportedHandle == elements[i].handle)
            claim(i, elements[i].handle);
    for (std::size_t i = 0; i < elements.size(); ++i)
        claim(i, elements[i].exportedHandle);
    for (std::size_t i = 0; i < elements.size(); ++i)
        claim(i, elements[i].handle);
    if (!taken.empty() && *taken.rbegin() > 0)
        greatest = std::max(greatest, std::uint64_t(*taken.rbegin()));
    std::int64_t next = greatest < most - elements.size() ? std::int64_t(greatest) : 0;
    for (std::size_t i = 0; i < elements.size(); ++i) {
        if (isSet[i])
            continue;
        do
            ++next;
        while (taken.count(next) != 0);
        taken.insert(next);
        elements[i].handle = next;
        if (!elements[i].isPart)
            tally.replaceHandle(elements[i].origin.line);
    }
}

/// In the order in which the classes are documented.
Json finished(const DrawnElement& element) {
    Json object = {{"class", element.keys->siteClass().name}, {"handle", element.handle}};
    for (const KeyShape& shape : element.keys->shapes()) {
        const auto value = element.object.find(shape.key);
        if (value != element.object.end() && !object.contains(shape.key))
            object[shape.key] = *value;
    }
    // What is no key of the class is refused by the reader of sites.
    for (const auto& [key, value] : element.object.items())
        if (!object.contains(key))
            object[key] = value;
    return object;
}

void tellTexts(const std::vector<DrawnText>& texts, const std::vector<bool>& isName, DrawingTally& tally) {
    for (std::size_t i = 0; i < texts.size(); ++i)
        if (!isName[i])
            tally.passOver(texts[i].type, texts[i].layer, filled(Words::tr("it names no outline")),
                           texts[i].line);
}

} // namespace

SiteOfDrawing siteOfDrawing(const DxfDrawing& drawing, const std::string& fileName,
                            const LayerMap* planners) {
    std::vector<const LayerMap*> maps;
    if (planners)
        maps.push_back(planners);
    maps.push_back(&LayerMap::convention());

    SiteOfDrawing site;
    DrawingTally unitTally;
    site.unit = unitOf(drawing, planners, unitTally);
    const double unit = site.unit.millimetres;
    SiteBuilder builder(drawing, fileName, maps, unit);
    walkDrawing(drawing, fileName, PlaneMap::scaled(unit, unit), builder);
    builder.joinLines();

    std::vector<DrawnElement>& elements = builder.elements();
    DrawingTally& tally = builder.tally();
    tellTexts(builder.texts(), nameElements(elements, builder.texts()), tally);
    for (DrawnElement& element : elements)
        assumeValues(element, maps, tally);
    setHandles(elements, drawing.greatestHandle, tally);
    for (const std::size_t door : joinDoors(elements))
        tally.leaveOutOfWalls(elements[door].origin.layer, elements[door].origin.line);
    if (!drawing.encodingDoubt.empty())
        tally.doubt("doubtful-encoding", drawing.encodingDoubt, 1);
    doubtUnit(elements, site.unit, tally);

    site.value = builder.siteValues();
    Json objects = Json::array();
    for (const DrawnElement& element : elements) {
        objects.push_back(finished(element));
        site.source.origins.push_back(element.origin);
    }
    site.value[kObjectsKey] = std::move(objects);
    site.source.doubts = unitTally.doubts();
    for (DrawingDoubt& doubt : tally.doubts())
        site.source.doubts.push_back(std::move(doubt));
    return site;
}

} // namespace firecheck
