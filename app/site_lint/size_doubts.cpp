#include "site_file/site_keys.h"
#include "site_lint/SiteDoubts.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <string_view>

namespace firecheck {

namespace {

constexpr double kUnbounded = 1e12;

/// What a value of site elements lies between. Wide enough for whatever is built, narrow enough to tell
/// metres from millimetres.
struct PlausibleSize {
    std::vector<std::string_view> classes; ///< all that have the key, if none is named
    const char* pointer;                   ///< within the object
    double low;
    double high;
    const char* unit;
    bool mayBeZero = false;
};

const std::vector<PlausibleSize>& plausibleSizes() {
    static const std::vector<PlausibleSize> table = {
        {{"model", "extinguisherBox", "building"}, "/length", 50, 500'000, "mm"},
        {{"model", "extinguisherBox", "building"}, "/depth", 50, 500'000, "mm"},
        {{"model", "extinguisherBox"}, "/height", 50, 100'000, "mm", true},
        {{}, "/length", 500, 1'000'000, "mm"},
        {{}, "/depth", 500, 1'000'000, "mm"},
        {{}, "/circle/radius", 250, 500'000, "mm"},
        {{}, "/elevation", -100'000, 500'000, "mm"},
        {{}, "/floors", 1, 20, "floors"},
        {{}, "/floorDepth", 500, 100'000, "mm"},
        {{"road"}, "/width", 1'000, 50'000, "mm"},
        {{"serviceCable"}, "/radius", 1, 1'000, "mm", true},
        {{}, "/startElevationMetres", -50, 200, "m"},
        {{}, "/endElevationMetres", -50, 200, "m"},
        {{}, "/elevationMetres", -50, 200, "m"},
        {{"poster"}, "/height", 100, 50'000, "mm"},
        {{}, "/jibHeight", 2'000, 500'000, "mm", true},
        {{}, "/frontJibLength", 2'000, 150'000, "mm", true},
        {{}, "/counterJibLength", 1'000, 100'000, "mm", true},
        {{}, "/mastWidth", 500, 10'000, "mm", true},
        {{}, "/jibWidth", 300, 10'000, "mm", true},
        {{}, "/jibDepth", 300, 10'000, "mm", true},
        {{}, "/leafWidth", 300, 30'000, "mm"},
        {{}, "/postWidth", 10, 2'000, "mm", true},
        {{}, "/postDepth", 10, 2'000, "mm", true},
        {{}, "/angle", -360, 360, "degrees"},
        {{}, "/jibInclination", -90, 90, "degrees"},
        {{}, "/position/2", -100'000, 500'000, "mm"},
        {{}, "/center/2", -100'000, 500'000, "mm"},
    };
    return table;
}

std::string shown(double value) {
    return QByteArray::number(value, 'g', 10).toStdString();
}

void doubt(double value, const PlausibleSize& size, const std::string& pointer, SiteDoubts& doubts) {
    if ((value >= size.low && value <= size.high) || (value == 0.0 && size.mayBeZero))
        return;
    std::string message =
        shown(value) + " " + size.unit + " is " +
        (value < size.low ? "less than " + shown(size.low) : "more than " + shown(size.high)) + " " +
        size.unit + ", which no such element has.";
    std::string suggestion;
    const bool isLength = std::string_view(size.unit) == "mm" || std::string_view(size.unit) == "m";
    for (const double factor : {1000.0, 0.001}) {
        const double other = value * factor;
        if (isLength && other >= size.low && other <= size.high && value != 0.0 && suggestion.empty())
            suggestion = shown(other);
    }
    doubts.push_back({pointer, "doubtful-size", message, suggestion});
}

bool concerns(const PlausibleSize& size, const std::string& className) {
    return size.classes.empty() ||
           std::find(size.classes.begin(), size.classes.end(), className) != size.classes.end();
}

/// The first row of the table for a class and key holds.
void doubtTabled(const Json& object, std::size_t index, SiteDoubts& doubts) {
    const auto className = object.at(kClassKey).get<std::string>();
    std::vector<std::string_view> seen;
    for (const PlausibleSize& size : plausibleSizes()) {
        const Json::json_pointer pointer(size.pointer);
        if (!concerns(size, className) || std::find(seen.begin(), seen.end(), size.pointer) != seen.end())
            continue;
        seen.push_back(size.pointer);
        if (object.contains(pointer) && object.at(pointer).is_number())
            doubt(object.at(pointer).get<double>(), size, DoubtedSite::pointerTo(index, size.pointer),
                  doubts);
    }
}

/// A closed polyline that is smaller or larger than any outline.
void doubtPolyline(const Json& points, const std::string& pointer, SiteDoubts& doubts) {
    if (!points.is_array() || points.size() < 2)
        return;
    double low[2] = {kUnbounded, kUnbounded};
    double high[2] = {-kUnbounded, -kUnbounded};
    for (const Json& point : points)
        for (std::size_t axis = 0; axis < 2; ++axis) {
            low[axis] = std::min(low[axis], point[axis].get<double>());
            high[axis] = std::max(high[axis], point[axis].get<double>());
        }
    const double extent = std::max(high[0] - low[0], high[1] - low[1]);
    doubt(extent, {{}, "", 500, 2'000'000, "mm"}, pointer, doubts);
}

/// Partitions of a house lie in their order between its ends, rooms apart.
void doubtPartitions(const Json& object, std::size_t index, SiteDoubts& doubts) {
    const auto given = object.find("partitions");
    if (given == object.end() || !object.contains("length"))
        return;
    const double length = object.at("length").get<double>();
    double previous = 0.0;
    for (std::size_t i = 0; i < given->size(); ++i) {
        const Json& entry = (*given)[i];
        const double position = entry.is_number() ? entry.get<double>() : entry[0].get<double>();
        const std::string pointer = DoubtedSite::pointerTo(index, "/partitions/" + std::to_string(i));
        if (position < -1.0 || position > length + 1.0)
            doubts.push_back(
                {pointer,
                 "doubtful-size",
                 shown(position) + " mm is outside the house, which is " + shown(length) + " mm long.",
                 {}});
        else if (i > 0 && position < previous + 500.0)
            doubts.push_back({pointer,
                              "doubtful-size",
                              "The wall at " + shown(position) +
                                  " mm stands less than 500 mm behind the one at " + shown(previous) + " mm.",
                              {}});
        previous = position;
    }
}

/// A line between two points that is shorter or longer than any road, wall, cable or poster.
void doubtLine(const Json& object, std::size_t index, SiteDoubts& doubts) {
    if (!object.contains("start") || !object.contains("end") || object.contains("through"))
        return;
    const Json& start = object.at("start");
    const Json& end = object.at("end");
    const double length = std::hypot(end[0].get<double>() - start[0].get<double>(),
                                     end[1].get<double>() - start[1].get<double>());
    doubt(length, {{}, "", 200, 10'000'000, "mm"}, DoubtedSite::pointerTo(index, "/end"), doubts);
}

void doubtExtents(const Json& object, std::size_t index, SiteDoubts& doubts) {
    const auto extents = object.find("extents");
    if (extents == object.end())
        return;
    for (std::size_t axis = 0; axis < 3; ++axis)
        if (extents->at("low")[axis].get<double>() > extents->at("high")[axis].get<double>()) {
            doubts.push_back({DoubtedSite::pointerTo(index, "/extents"),
                              "doubtful-size",
                              "The low corner lies above the high one.",
                              {}});
            return;
        }
}

} // namespace

void doubtSizes(const DoubtedSite& site, SiteDoubts& doubts) {
    for (std::size_t i = 0; i < site.objects().size(); ++i) {
        const Json& object = site.objects()[i];
        doubtTabled(object, i, doubts);
        for (const char* key : {"polyline", "outline"})
            if (object.contains(key))
                doubtPolyline(object.at(key), DoubtedSite::pointerTo(i, "/" + std::string(key)), doubts);
        doubtPartitions(object, i, doubts);
        doubtLine(object, i, doubts);
        doubtExtents(object, i, doubts);
    }
}

} // namespace firecheck
