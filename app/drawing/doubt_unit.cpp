#include "drawing/doubt_unit.h"

#include "drawing/dxf_units.h"
#include "drawing/sound_geometry.h"
#include "text/words.h"

#include <QString>

#include <algorithm>
#include <cmath>

namespace firecheck {

namespace {

constexpr double kSmallest = 1500.0; // mm
constexpr double kLargest = 200000.0;
constexpr double kLeastUsual = 3000.0; // what half of them may well measure
constexpr double kMostUsual = 80000.0;

double extentOf(const Json& points) {
    double low[2] = {points[0][0].get<double>(), points[0][1].get<double>()};
    double high[2] = {low[0], low[1]};
    for (const Json& point : points)
        for (std::size_t axis = 0; axis < 2; ++axis) {
            low[axis] = std::min(low[axis], point[axis].get<double>());
            high[axis] = std::max(high[axis], point[axis].get<double>());
        }
    return std::max(high[0] - low[0], high[1] - low[1]);
}

/// How long a house, yard or route is; 0 for what is no such thing.
double sizeOf(const DrawnElement& element) {
    const Json& object = element.object;
    if (element.isExported || !hasSoundGeometry(object))
        return 0.0;
    if (element.keys->plan() == ElementPlan::Route || element.keys->plan() == ElementPlan::Wall)
        return extentOf({object["start"], object["end"]});
    if (element.keys->plan() != ElementPlan::Footprint)
        return 0.0;
    if (object.contains("polyline"))
        return extentOf(object["polyline"]);
    if (object.contains("circle"))
        return 2.0 * object["circle"]["radius"].get<double>();
    return std::max(object["length"].get<double>(), object["depth"].get<double>());
}

} // namespace

void doubtUnit(const std::vector<DrawnElement>& elements, const DrawingUnit& unit, DrawingTally& tally) {
    std::vector<double> sizes;
    for (const DrawnElement& element : elements)
        if (const double size = sizeOf(element); size > 0.0)
            sizes.push_back(size);
    if (sizes.empty())
        return;
    const auto middle = sizes.begin() + std::ptrdiff_t(sizes.size() / 2);
    std::nth_element(sizes.begin(), middle, sizes.end());
    if (*middle >= kSmallest && *middle <= kLargest)
        return;
    std::string likely;
    const char* given = "mm";
    for (const DxfUnit& candidate : dxfUnits()) {
        const double size = *middle / unit.millimetres * candidate.millimetres;
        const bool isUsual = candidate.code == 4 || candidate.code == 6 || candidate.code == 5 ||
                             candidate.code == 1 || candidate.code == 2;
        if (likely.empty() && isUsual && size >= kLeastUsual && size <= kMostUsual)
            likely = candidate.name;
        if (candidate.code == unit.code)
            given = candidate.name;
    }
    tally.doubt(
        "doubtful-unit",
        filled(
            Words::tr("the drawing is read in %1, in which half of its houses, yards and routes are at most "
                      "%2 m long; \"unit\" in a table of layers decides"),
            std::string(given), QString::number(*middle / 1000.0, 'g', 3)),
        1, likely);
}

} // namespace firecheck
