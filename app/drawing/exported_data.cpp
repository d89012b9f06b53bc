#include "drawing/exported_data.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace firecheck {

namespace {

const std::set<std::string>& geometryKeys() {
    static const std::set<std::string> keys = {"center",  "length",   "depth",     "angle",
                                               "circle",  "polyline", "start",     "end",
                                               "through", "position", "leafWidth", "frontJibLength"};
    return keys;
}

Json member(const Json& object, const std::string& key) {
    const auto found = object.find(key);
    return found == object.end() ? Json() : *found;
}

/// The same but for rounding.
bool isNear(const Json& a, const Json& b) {
    if (a.is_number() && b.is_number()) {
        const double x = a.get<double>();
        return std::abs(x - b.get<double>()) <= 1e-3 + 1e-12 * std::abs(x);
    }
    if (a.is_array() && b.is_array()) {
        bool isSame = a.size() == b.size();
        for (std::size_t i = 0; isSame && i < a.size(); ++i)
            isSame = isNear(a[i], b[i]);
        return isSame;
    }
    if (a.is_object() && b.is_object()) {
        bool isSame = a.size() == b.size();
        for (const auto& [key, value] : a.items())
            isSame = isSame && isNear(value, member(b, key));
        return isSame;
    }
    return a == b;
}

/// Whether the entity reads as it did when the data were written.
bool isAsExported(const Json& data, const Json& geometry) {
    const Json drawn = data.value(kDrawnKey, Json::object());
    for (const std::string& key : geometryKeys()) {
        const Json now = member(geometry, key);
        const Json then = drawn.contains(key) ? drawn[key] : data.contains(key) ? data[key] : now;
        if (!isNear(now, then))
            return false;
    }
    return true;
}

} // namespace

Json exportedData(const Json& object, const Json& geometry) {
    Json data = Json::object();
    Json drawn = Json::object();
    for (const auto& [key, value] : object.items()) {
        const bool isOfShape = geometryKeys().count(key) != 0;
        if (isOfShape && value == member(geometry, key))
            continue;
        data[key] = value;
        if (isOfShape && !isNear(value, member(geometry, key)))
            drawn[key] = member(geometry, key);
    }
    for (const auto& [key, value] : geometry.items())
        if (!object.contains(key))
            drawn[key] = value;
    if (!drawn.empty())
        data[kDrawnKey] = std::move(drawn);
    return data;
}

Json importedObject(const Json& data, const Json& geometry, const Json& asPolyline) {
    const bool isExact = isAsExported(data, geometry);
    const Json drawn = data.value(kDrawnKey, Json::object());
    Json object = Json::object();
    for (const auto& [key, value] : data.items())
        if (key != kDrawnKey && (isExact || geometryKeys().count(key) == 0))
            object[key] = value;
    const Json& shape = !isExact && data.contains("polyline") && !asPolyline.empty() ? asPolyline : geometry;
    for (const auto& [key, value] : shape.items())
        if (!object.contains(key) && !(isExact && drawn.contains(key)))
            object[key] = value;
    return object;
}

std::vector<std::string> dataStrings(const Json& data) {
    constexpr std::size_t longest = 250;         // bytes of a string in extended data, and a few to spare
    std::string text = data.dump(-1, ' ', true); // ASCII, which no code page changes
    // What DXF takes for an escape of its own.
    for (const char* const escape : {"\\U+", "\\M+"})
        for (auto at = text.find(escape); at != std::string::npos; at = text.find(escape, at))
            text.replace(at + 2, 1, "\\u002b");
    std::vector<std::string> strings;
    for (std::size_t start = 0; start < text.size();) {
        std::size_t end = std::min(start + longest, text.size());
        // Blanks at the ends of a string may get lost.
        while (end < text.size() && end > start + longest / 2 && (text[end - 1] == ' ' || text[end] == ' '))
            --end;
        strings.push_back(text.substr(start, end - start));
        start = end;
    }
    return strings;
}

} // namespace firecheck
