#include "placement.h"

#include "InputError.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kEast = 5000000.0;
constexpr double kNorth = -3000000.0;
constexpr double kCosine = 0.6;
constexpr double kSine = 0.8;
constexpr double kDegreesPerRadian = 57.29577951308232;

bool isOneOf(const std::string& key, std::initializer_list<const char*> keys) {
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

class Placement {
public:
    explicit Placement(Turn turn) : m_isTurned(turn != Turn::None) {}

    void placeObject(Json& object) const {
        for (auto& [key, value] : object.items()) {
            if (isOneOf(key, {"center", "position", "start", "end", "through", "radiusPoint"}))
                placePoint(value);
            else if (isOneOf(key, {"polyline", "outline"}) && value.is_array())
                placePoints(value);
            else if (isOneOf(key, {"circle", "footprint", "secondView"}))
                placeObject(value);
            else if (key == "extents")
                placeExtents(value);
        }
        const bool hasDirection = object.contains("length") || object.contains("position");
        if (m_isTurned && hasDirection)
            object["angle"] = object.value("angle", 0.0) + std::atan2(kSine, kCosine) * kDegreesPerRadian;
    }

private:
    void placePoint(Json& point) const {
        const auto x = point.at(0).get<double>();
        const auto y = point.at(1).get<double>();
        point[0] = (m_isTurned ? kCosine * x - kSine * y : x) + kEast;
        point[1] = (m_isTurned ? kSine * x + kCosine * y : y) + kNorth;
    }

    void placePoints(Json& points) const {
        for (Json& point : points)
            placePoint(point);
    }

    void placeExtents(Json& extents) const {
        if (m_isTurned)
            throw InputError("extents cannot be turned");
        placePoint(extents.at("low"));
        placePoint(extents.at("high"));
    }

    bool m_isTurned;
};

} // namespace

Json placed(const Json& site, Turn turn) {
    Json result = site;
    for (Json& object : result.at("objects"))
        Placement(turn).placeObject(object);
    return result;
}
