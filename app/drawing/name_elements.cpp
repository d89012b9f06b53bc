#include "drawing/BoxGrid.h"
#include "drawing/DrawnElement.h"
#include "drawing/sound_geometry.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace firecheck {

namespace {

using Point = hrx::CVec2<double>;

constexpr double kCell = 20000.0; // mm, about a house

/// An element's outline; arcs by a few chords, which is near enough for a text.
std::vector<Point> cornersOf(const Json& object) {
    const auto at = [](const Json& point) { return Point{point[0].get<double>(), point[1].get<double>()}; };
    std::vector<Point> corners;
    if (object.contains("polyline")) {
        for (const Json& vertex : object["polyline"])
            corners.push_back(at(vertex));
    } else if (object.contains("circle")) {
        const Point centre = at(object["circle"]["center"]);
        const double radius = object["circle"]["radius"].get<double>();
        for (int i = 0; i < 16; ++i)
            corners.push_back(centre + PlaneMap::turned(i * 22.5).xAxis * radius);
    } else if (object.contains("length") && object.contains("depth")) {
        const Json& middle = object.contains("center") ? object["center"] : object["position"];
        const PlaneMap turn = PlaneMap::moved(at(middle)).after(PlaneMap::turned(object.value("angle", 0.0)));
        const double x = object["length"].get<double>() * 0.5;
        const double y = object["depth"].get<double>() * 0.5;
        for (const Point& corner : {Point{-x, -y}, Point{x, -y}, Point{x, y}, Point{-x, y}})
            corners.push_back(turn(corner));
    }
    return corners;
}

bool holds(const std::vector<Point>& corners, const Point& p) {
    bool isInside = false;
    for (std::size_t i = 0, previous = corners.size() - 1; i < corners.size(); previous = i++) {
        const Point& a = corners[i];
        const Point& b = corners[previous];
        if ((a.y > p.y) != (b.y > p.y) && p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x)
            isInside = !isInside;
    }
    return isInside;
}

double areaOf(const std::vector<Point>& corners) {
    double twice = 0.0;
    for (std::size_t i = 0; i < corners.size(); ++i)
        twice += hrx::cross(corners[i] - corners[0], corners[(i + 1) % corners.size()] - corners[0]);
    return std::abs(twice) * 0.5;
}

struct Outline {
    std::size_t element;
    std::vector<Point> corners;
    double area;
};

/// The outlines of what the drawing itself gives; those of an exported object are complete.
std::vector<Outline> outlinesOf(const std::vector<DrawnElement>& elements, BoxGrid& grid) {
    std::vector<Outline> outlines;
    for (std::size_t i = 0; i < elements.size(); ++i) {
        if (elements[i].isExported || !hasSoundGeometry(elements[i].object))
            continue;
        std::vector<Point> corners = cornersOf(elements[i].object);
        if (corners.size() < 3)
            continue;
        hrx::CBox2d box;
        for (const Point& corner : corners)
            box.add(corner);
        grid.add(box, outlines.size());
        const double area = areaOf(corners);
        outlines.push_back({i, std::move(corners), area});
    }
    return outlines;
}

bool isBetterName(const DrawnText& text, const DrawnText& than, const std::string& layer) {
    const bool isOnLayer = text.layer == layer;
    if (isOnLayer != (than.layer == layer))
        return isOnLayer;
    return text.height > than.height;
}

} // namespace

std::vector<bool> nameElements(std::vector<DrawnElement>& elements, const std::vector<DrawnText>& texts) {
    BoxGrid grid(kCell);
    const std::vector<Outline> outlines = outlinesOf(elements, grid);
    std::vector<std::optional<std::size_t>> names(elements.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const Outline* innermost = nullptr;
        grid.near(texts[i].at, [&](std::size_t number) {
            const Outline& outline = outlines[number];
            const bool isSmaller = !innermost || outline.area < innermost->area;
            if (isSmaller && holds(outline.corners, texts[i].at))
                innermost = &outline;
        });
        if (!innermost || elements[innermost->element].object.contains("name"))
            continue;
        auto& name = names[innermost->element];
        if (!name || isBetterName(texts[i], texts[*name], elements[innermost->element].origin.layer))
            name = i;
    }
    std::vector<bool> isName(texts.size(), false);
    for (std::size_t i = 0; i < elements.size(); ++i)
        if (names[i]) {
            elements[i].object["name"] = texts[*names[i]].text;
            isName[*names[i]] = true;
        }
    return isName;
}

} // namespace firecheck
