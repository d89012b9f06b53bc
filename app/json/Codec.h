#pragma once

#include "geometry/CExtents3.h"
#include "geometry/CVec2.h"
#include "geometry/CVec3.h"
#include "geometry/PolyPt2d.h"
#include "json/Json.h"
#include "json/JsonPlace.h"

#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace firecheck {

/// Makes a schema when it is asked for: whoever only reads needs none.
using SchemaMaker = std::function<Json()>;

/// Names for codes, as people write them.
using CodeNames = std::vector<std::pair<std::string, std::int64_t>>;

/// How a value of type T is written in JSON: its schema and its reader, which refuses just what the schema
/// refuses.
template <class T> struct Codec {
    SchemaMaker schema;
    std::function<T(const Json&, const JsonPlace&)> read;
    CodeNames names = {}; ///< of a code
};

Codec<bool> flag();
Codec<double> number();
/// A number that is not negative.
Codec<double> extent();
Codec<std::wstring> text();
Codec<hrx::CVec2<double>> planPoint();
/// [x, y] or [x, y, z]; z is 0 unless given.
Codec<hrx::CVec3<double>> point();
/// A list of [x, y] or [x, y, bulge].
Codec<std::vector<hrx::PolyPt2d>> polyline();
/// Positions along an axis: a list of x or [x, y].
Codec<std::vector<hrx::CVec2<double>>> axisPositions();
/// {"low": [x, y, z], "high": [x, y, z]}.
Codec<std::optional<hrx::CExtents3>> extents();

std::int64_t readInteger(const Json& value, const JsonPlace& place, std::int64_t lowest,
                         std::int64_t highest);
Json integerSchema(std::int64_t lowest, std::int64_t highest);

template <class Int>
Codec<Int> integer(Int lowest = std::numeric_limits<Int>::min(),
                   Int highest = std::numeric_limits<Int>::max()) {
    return {[lowest, highest] { return integerSchema(lowest, highest); },
            [lowest, highest](const Json& value, const JsonPlace& place) {
                return static_cast<Int>(readInteger(value, place, lowest, highest));
            }};
}

std::int64_t readCode(const Json& value, const JsonPlace& place, const CodeNames& names, std::int64_t lowest,
                      std::int64_t highest);
Json codeSchema(const CodeNames& names, std::int64_t lowest, std::int64_t highest);

/// One of the names, or any integer that fits Code.
template <class Code, class Int = Code> Codec<Code> code(CodeNames names) {
    constexpr auto lowest = std::numeric_limits<Int>::min();
    constexpr auto highest = std::numeric_limits<Int>::max();
    return {[names] { return codeSchema(names, lowest, highest); },
            [names](const Json& value, const JsonPlace& place) {
                return static_cast<Code>(readCode(value, place, names, lowest, highest));
            },
            names};
}

/// Refuses what was found in favour of what was expected.
[[noreturn]] void refuseType(const Json& value, const JsonPlace& place, const std::string& expected);

std::wstring wideText(const std::string& utf8);

} // namespace firecheck
