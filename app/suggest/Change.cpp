#include "suggest/Change.h"

#include <cmath>
#include <utility>

namespace firecheck {

namespace {

constexpr double kFinest = 1e-6;  ///< mm; digits beyond are rounding noise
constexpr double kPerUnit = 1e6;  ///< of the finest
constexpr double kFarthest = 1e9; ///< mm; beyond, doubles are coarser than the finest

void movePoint(Json& point, const PlanMove& move) {
    point[0] = sumOf(point[0], double(move.dx));
    point[1] = sumOf(point[1], double(move.dy));
}

void moveAt(Json& object, const char* key, const PlanMove& move) {
    const auto point = object.find(key);
    if (point != object.end() && point->is_array() && point->size() >= 2)
        movePoint(*point, move);
}

void movePoints(Json& object, const char* key, const PlanMove& move) {
    const auto points = object.find(key);
    if (points != object.end() && points->is_array())
        for (Json& point : *points)
            movePoint(point, move);
}

void moveInside(Json& object, const char* key, const PlanMove& move) {
    const auto inner = object.find(key);
    if (inner != object.end() && inner->is_object())
        *inner = movedObject(*inner, move);
}

} // namespace

double PlanMove::length() const {
    return std::hypot(double(dx), double(dy));
}

Json sumOf(const Json& number, double addend) {
    double sum = number.get<double>() + addend;
    if (std::abs(sum) < kFarthest)
        sum = std::round(sum * kPerUnit) / kPerUnit;
    const bool isWhole = std::abs(sum - std::round(sum)) < kFinest && std::abs(sum) < kFarthest;
    return number.is_number_integer() && isWhole ? Json(static_cast<std::int64_t>(std::llround(sum)))
                                                 : Json(sum);
}

Json movedObject(Json object, const PlanMove& move) {
    for (const char* key : {"center", "position", "start", "end", "through", "radiusPoint", "low", "high"})
        moveAt(object, key, move);
    for (const char* key : {"polyline", "outline"})
        movePoints(object, key, move);
    for (const char* key : {"circle", "footprint", "extents", "secondView"})
        moveInside(object, key, move);
    return object;
}

std::optional<Json> turnedObject(Json object, int degrees) {
    const bool isTurnable =
        object.contains("position") ||
        (object.contains("center") && !object.contains("polyline") && !object.contains("circle"));
    if (!isTurnable || object.contains("secondView") || object.contains("extents"))
        return std::nullopt;
    object["angle"] = sumOf(object.value("angle", Json(0)), double(degrees));
    return object;
}

} // namespace firecheck
