#include "drawing/sound_geometry.h"

#include <algorithm>
#include <iterator>

namespace firecheck {

namespace {

bool isNumber(const Json& value) {
    return value.is_number();
}

bool isPoint(const Json& value) {
    return value.is_array() && value.size() >= 2 && std::all_of(value.begin(), value.end(), isNumber);
}

bool isOutline(const Json& value) {
    return value.is_array() && !value.empty() && std::all_of(value.begin(), value.end(), isPoint);
}

bool isCircle(const Json& value) {
    return value.is_object() && value.contains("center") && isPoint(value["center"]) &&
           value.contains("radius") && isNumber(value["radius"]);
}

bool isListOfDoors(const Json& value) {
    return value.is_array() && std::all_of(value.begin(), value.end(), [](const Json& entry) {
               return entry.is_object() && entry.contains("distance") && isNumber(entry["distance"]);
           });
}

} // namespace

bool hasSoundGeometry(const Json& object) {
    static const struct {
        const char* key;
        bool (*isSound)(const Json&);
    } kinds[] = {{"center", isPoint},     {"position", isPoint},   {"start", isPoint},  {"end", isPoint},
                 {"length", isNumber},    {"depth", isNumber},     {"angle", isNumber}, {"circle", isCircle},
                 {"polyline", isOutline}, {"doors", isListOfDoors}};
    return std::all_of(std::begin(kinds), std::end(kinds), [&object](const auto& kind) {
        const auto value = object.find(kind.key);
        return value == object.end() || kind.isSound(*value);
    });
}

} // namespace firecheck
