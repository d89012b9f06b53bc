#include "site_file/site_keys.h"
#include "site_lint/SiteDoubts.h"
#include "text/words.h"

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
        {{"model", "extinguisherBox", "building"}, "/length", 50, 500e3, "mm"},
        {{"model", "extinguisherBox", "building"}, "/depth", 50, 500e3, "mm"},
        {{"model", "extinguisherBox"}, "/height", 50, 100e3, "mm", true},
        {{}, "/length", 500, 1000e3, "mm"},
        {{}, "/depth", 500, 1000e3, "mm"},
        {{}, "/circle/radius", 250, 500e3, "mm"},
        {{}, "/elevation", -100e3, 500e3, "mm"},
        {{}, "/floors", 1, 20, QT_TRANSLATE_NOOP("Words", "floors")},
        {{}, "/floorDepth", 500, 100e3, "mm"},
        {{"road"}, "/width", 1e3, 50e3, "mm"},
        {{"serviceCable"}, "/radius", 1, 1e3, "mm", true},
        {{}, "/startElevationMetres", -50, 200, "m"},
        {{}, "/endElevationMetres", -50, 200, "m"},
        {{}, "/elevationMetres", -50, 200, "m"},
        {{"poster"}, "/height", 100, 50e3, "mm"},
        {{}, "/jibHeight", 2e3, 500e3, "mm", true},
        {{}, "/frontJibLength", 2e3, 150e3, "mm", true},
        {{}, "/counterJibLength", 1e3, 100e3, "mm", true},
        {{}, "/mastWidth", 500, 10e3, "mm", true},
        {{}, "/jibWidth", 300, 10e3, "mm", true},
        {{}, "/jibDepth", 300, 10e3, "mm", true},
        {{}, "/leafWidth", 300, 30e3, "mm"},
        {{}, "/postWidth", 10, 2e3, "mm", true},
        {{}, "/postDepth", 10, 2e3, "mm", true},
        {{}, "/angle", -360, 360, QT_TRANSLATE_NOOP("Words", "degrees")},
        {{}, "/jibInclination", -90, 90, QT_TRANSLATE_NOOP("Words", "degrees")},
        {{}, "/position/2", -100e3, 500e3, "mm"},
        {{}, "/center/2", -100e3, 500e3, "mm"},
    };
    return table;
}

std::string shown(double value) {
    return QByteArray::number(value, 'g', 10).toStdString();
}

void doubt(double value, const PlausibleSize& size, const std::string& pointer, SiteDoubts& doubts) {
    if ((value >= size.low && value <= size.high) || (value == 0.0 && size.mayBeZero))
        return;
    const std::string unit = filled(Words::tr(size.unit));
    const std::string message =
        value < size.low
            ? filled(Words::tr("%1 %3 is less than %2 %3, which no such element has.", "value, bound, unit"),
                     shown(value), shown(size.low), unit)
            : filled(Words::tr("%1 %3 is more than %2 %3, which no such element has.", "value, bound, unit"),
                     shown(value), shown(size.high), unit);
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
    doubt(extent, {{}, "", 500, 2000e3, "mm"}, pointer, doubts);
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
            doubts.push_back({pointer,
                              "doubtful-size",
                              filled(Words::tr("%1 mm is outside the house, which is %2 mm long."),
                                     shown(position), shown(length)),
                              {}});
        else if (i > 0 && position < previous + 500.0)
            doubts.push_back(
                {pointer,
                 "doubtful-size",
                 filled(Words::tr("The wall at %1 mm stands less than 500 mm behind the one at %2 mm."),
                        shown(position), shown(previous)),
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
    doubt(length, {{}, "", 200, 10000e3, "mm"}, DoubtedSite::pointerTo(index, "/end"), doubts);
}

void doubtExtents(const Json& object, std::size_t index, SiteDoubts& doubts) {
    const auto extents = object.find("extents");
    if (extents == object.end())
        return;
    for (std::size_t axis = 0; axis < 3; ++axis)
        if (extents->at("low")[axis].get<double>() > extents->at("high")[axis].get<double>()) {
            doubts.push_back({DoubtedSite::pointerTo(index, "/extents"),
                              "doubtful-size",
                              filled(Words::tr("The low corner lies above the high one.")),
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
