#include "drawing/drawing_of_site.h"

#include "InputError.h"
#include "drawing/ElementKeys.h"
#include "drawing/dxf/write_dxf.h"
#include "drawing/exported_data.h"
#include "geometry/CArc2d.h"
#include "site_file/site_keys.h"
#include "text/words.h"

#include <QString>

#include <algorithm>
#include <set>

namespace firecheck {

namespace {

const std::string kNamesLayer = "FIRECHECK-NAMES";
const std::string kSiteLayer = "FIRECHECK-SITE";
constexpr double kNameHeight = 700.0; // mm

using Point = hrx::CVec2<double>;

DxfPoint dxfPoint(const Point& p) {
    return {p.x, p.y};
}

Point pointOf(const Json& point) {
    return {point[0].get<double>(), point[1].get<double>()};
}

/// The value of a key, or its default, or what stands in for it.
double number(const Json& object, const ElementKeys& keys, const std::string& key) {
    const auto found = object.find(key);
    if (found != object.end())
        return found->get<double>();
    for (const KeyShape& shape : keys.shapes())
        if (shape.key == key && shape.defaultValue && shape.defaultValue->is_number())
            return shape.defaultValue->get<double>();
    return 0.0;
}

DxfPolyline rectangle(const Json& object, const ElementKeys& keys, const std::string& middleKey) {
    const PlaneMap turn =
        PlaneMap::moved(pointOf(object[middleKey])).after(PlaneMap::turned(number(object, keys, "angle")));
    const double x = number(object, keys, "length") * 0.5;
    const double y = number(object, keys, "depth") * 0.5;
    DxfPolyline polyline;
    polyline.isClosed = true;
    for (const Point& corner : {Point{-x, -y}, Point{x, -y}, Point{x, y}, Point{-x, y}})
        polyline.vertices.push_back({dxfPoint(turn(corner)), 0.0});
    return polyline;
}

DxfPolyline closedPolyline(const Json& points) {
    DxfPolyline polyline;
    polyline.isClosed = true;
    for (const Json& point : points)
        polyline.vertices.push_back(
            {dxfPoint(pointOf(point)), point.size() > 2 ? point[2].get<double>() : 0.0});
    return polyline;
}

/// The one of an object's footprints that counts, as far as there is one.
bool drawFootprint(const Json& object, const ElementKeys& keys, DxfEntity& entity) {
    const Json kind = object.value("shapeKind", Json());
    const auto counts = [&](const char* name, bool isGiven) {
        return isGiven && (!kind.is_string() || kind == name);
    };
    const bool isRectangle =
        object.contains("center") && object.contains("length") && object.contains("depth");
    const bool isPolyline = object.contains("polyline") && object["polyline"].size() > 1;
    if (counts("rectangle", isRectangle))
        entity.shape = rectangle(object, keys, "center");
    else if (counts("polyline", isPolyline))
        entity.shape = closedPolyline(object["polyline"]);
    else if (counts("circle", object.contains("circle")))
        entity.shape = DxfArc{dxfPoint(pointOf(object["circle"]["center"])),
                              object["circle"]["radius"].get<double>(), true, 0.0, 0.0};
    else
        return false;
    return true;
}

void drawRoute(const Json& object, DxfEntity& entity) {
    const Point start = pointOf(object["start"]);
    const Point end = pointOf(object["end"]);
    entity.shape = DxfLine{dxfPoint(start), dxfPoint(end)};
    if (!object.contains("through"))
        return;
    const hrx::CArc2d arc(start, end, pointOf(object["through"]));
    if (arc.edges().size() == 1)
        entity.shape =
            DxfPolyline{{{dxfPoint(start), arc.edges()[0].bulge}, {dxfPoint(end), 0.0}}, false, 0.0};
}

DxfLine lineFrom(const Point& from, double angle, double back, double ahead) {
    const Point direction = PlaneMap::turned(angle).xAxis;
    return {dxfPoint(from - direction * back), dxfPoint(from + direction * ahead)};
}

void draw(const Json& object, const ElementKeys& keys, DxfEntity& entity) {
    entity.shape =
        DxfPointMark{object.contains("position") ? dxfPoint(pointOf(object["position"])) : DxfPoint()};
    const double angle = number(object, keys, "angle");
    switch (keys.plan()) {
    case ElementPlan::Footprint:
        drawFootprint(object, keys, entity);
        break;
    case ElementPlan::Route:
    case ElementPlan::Wall:
        drawRoute(object, entity);
        break;
    case ElementPlan::Door: {
        const double half = number(object, keys, "leafWidth") * 0.5;
        entity.shape = lineFrom(pointOf(object["position"]), angle, half, half);
        break;
    }
    case ElementPlan::Crane:
        entity.shape =
            lineFrom(pointOf(object["position"]), angle, 0.0, number(object, keys, "frontJibLength"));
        break;
    case ElementPlan::Box:
        entity.shape = rectangle(object, keys, "position");
        break;
    case ElementPlan::Spot:
    case ElementPlan::Nowhere:
        break;
    }
}

/// What the entity says by its shape, read as it will be.
Json geometryOf(const DxfEntity& entity, const ElementKeys& keys) {
    const auto shape = drawnShape(entity, {});
    const std::vector<Json> geometries =
        shape ? elementGeometry(keys.plan(), *shape, LengthRuns::AlongFirstEdge) : std::vector<Json>();
    return geometries.size() == 1 ? geometries.front() : Json::object();
}

/// How many keys of the row the object has; -1 if it is no such object.
int likeness(const LayerRow& row, const Json& object) {
    int same = 0;
    for (const auto& [key, value] : row.values.items()) {
        if (!object.contains(key) || object[key] != value)
            return -1;
        ++same;
    }
    return same;
}

/// The name of a layer on which the row's elements lie: the first without wildcards.
std::string nameOfRow(const LayerRow& row) {
    for (const std::string& pattern : row.layers)
        if (pattern.find_first_of("*?") == std::string::npos)
            return layerName(pattern);
    return {};
}

class LayerChoice {
public:
    explicit LayerChoice(const LayerMap* planners) {
        if (planners)
            m_maps.push_back(planners);
        m_maps.push_back(&LayerMap::convention());
    }

    std::string layerOf(const Json& object) const {
        for (const LayerMap* map : m_maps) {
            std::string best;
            int most = 0;
            for (const LayerRow& row : map->rows()) {
                const std::string name = nameOfRow(row);
                const int same = name.empty() ? -1 : likeness(row, object);
                if (same > most) {
                    most = same;
                    best = name;
                }
            }
            if (!best.empty())
                return best;
        }
        return QString::fromStdString(object[kClassKey].get<std::string>()).toUpper().toStdString();
    }

private:
    std::vector<const LayerMap*> m_maps;
};

struct ClassColour {
    const char* className;
    int rgb;
};

/// Colours on a black screen as on white paper.
int colourOf(const Json& object) {
    static const ClassColour table[] = {{"prefabHouse", 0x1565C0},
                                        {"closedHouse", 0x3949AB},
                                        {"openShed", 0x2E7D32},
                                        {"futureHouse", 0x7B1FA2},
                                        {"road", 0x808080},
                                        {"wall", 0x808080},
                                        {"woodYard", 0xA85F00},
                                        {"templateYard", 0xA85F00},
                                        {"yardMesh", 0xA85F00},
                                        {"yard", 0xA85F00},
                                        {"serviceCable", 0xFF7F00},
                                        {"towerCrane", 0x00747F},
                                        {"extinguisherBox", 0xC62828},
                                        {"electricalMechanicalYard", 0xA85F00}};
    if (object.value("fireRoad", false))
        return 0xC62828;
    for (const ClassColour& entry : table)
        if (object[kClassKey] == entry.className)
            return entry.rgb;
    return -1;
}

void requireRoom(const std::vector<std::string>& strings, const std::string& whose) {
    std::size_t size = 0;
    for (const std::string& string : strings)
        size += string.size() + 3;
    if (size > kMostExtendedData)
        throw InputError(
            filled(Words::tr("%1: expected at most 16 kB beside what its shape says, found %2 kB; "
                             "a drawing cannot keep it"),
                   whose, size / 1000));
}

/// The middle of what is drawn, for the name.
DxfPoint middleOf(const DxfEntity& entity) {
    const auto shape = drawnShape(entity, {});
    const hrx::CBox2d box = shape ? boxOf(*shape) : hrx::CBox2d();
    return {(box.low.x + box.high.x) * 0.5, (box.low.y + box.high.y) * 0.5};
}

DxfEntity nameText(const DxfEntity& entity, const std::string& name) {
    DxfEntity text;
    text.layer = kNamesLayer;
    text.shape = DxfText{middleOf(entity), kNameHeight, 0.0, name, true};
    return text;
}

} // namespace

DxfDrawing drawingOfSite(const Json& value, const LayerMap* layers) {
    constexpr int millimetres = 4;
    const LayerChoice choice(layers);
    DxfDrawing drawing;
    drawing.units = millimetres;
    std::vector<DxfEntity> names;
    Json site = value;
    site.erase(kObjectsKey);
    if (!site.empty()) {
        DxfEntity entity;
        entity.layer = kSiteLayer;
        entity.shape = DxfPointMark();
        entity.extendedData = dataStrings({{kSiteDataKey, std::move(site)}});
        requireRoom(entity.extendedData, filled(Words::tr("the site as a whole")));
        drawing.entities.push_back(std::move(entity));
    }
    for (const Json& object : value.at(kObjectsKey)) {
        const ElementKeys& keys = *ElementKeys::ofClass(object[kClassKey].get<std::string>());
        DxfEntity entity;
        draw(object, keys, entity);
        entity.layer = choice.layerOf(object);
        DxfLayer& layer = drawing.layers[entity.layer];
        layer.colour = layer.colour < 0 ? colourOf(object) : layer.colour;
        const auto handle = object["handle"].get<std::int64_t>();
        if (handle > 0)
            entity.handle = std::uint64_t(handle);
        // The handle stands there as well: not every version of a drawing keeps it.
        entity.extendedData = dataStrings(exportedData(object, geometryOf(entity, keys)));
        requireRoom(entity.extendedData, filled(Words::tr("object #%1"), handle));
        if (object.contains("name"))
            names.push_back(nameText(entity, object["name"].get<std::string>()));
        drawing.entities.push_back(std::move(entity));
    }
    drawing.entities.insert(drawing.entities.end(), std::make_move_iterator(names.begin()),
                            std::make_move_iterator(names.end()));
    return drawing;
}

} // namespace firecheck
