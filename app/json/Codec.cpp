#include "json/Codec.h"

#include "text/nearest_name.h"
#include "text/words.h"

#include <QString>

#include <algorithm>
#include <array>
#include <cmath>

namespace firecheck {

namespace {

/// Coordinates up to which distances are measured; no other number needs more.
constexpr double kGreatest = 1e12;

double readNumber(const Json& value, const JsonPlace& place) {
    if (!value.is_number())
        refuseType(value, place, filled(Words::tr("a number")));
    const double result = value.get<double>();
    if (!(std::abs(result) <= kGreatest))
        refuse(place, filled(Words::tr("expected a number from -1e12 to 1e12")));
    return result;
}

Json numberSchema() {
    return {{"type", "number"}, {"minimum", -kGreatest}, {"maximum", kGreatest}};
}

Json tupleSchema(std::size_t fewest, std::size_t most) {
    return {{"type", "array"}, {"items", numberSchema()}, {"minItems", fewest}, {"maxItems", most}};
}

/// The numbers of a list of `fewest` to `most` numbers; missing ones are 0.
std::array<double, 3> readTuple(const Json& value, const JsonPlace& place, std::size_t fewest,
                                std::size_t most, const char* expected) {
    if (!value.is_array() || value.size() < fewest || value.size() > most)
        refuseType(value, place, filled(Words::tr(expected)));
    std::array<double, 3> result{};
    for (std::size_t i = 0; i < value.size(); ++i)
        result.at(i) = readNumber(value[i], JsonPlace(place, i));
    return result;
}

template <class T, class ReadItem>
std::vector<T> readList(const Json& value, const JsonPlace& place, ReadItem readItem) {
    if (!value.is_array())
        refuseType(value, place, filled(Words::tr("a list")));
    std::vector<T> result;
    result.reserve(value.size());
    for (std::size_t i = 0; i < value.size(); ++i)
        result.push_back(readItem(value[i], JsonPlace(place, i)));
    return result;
}

Json listSchema(Json item) {
    return {{"type", "array"}, {"items", std::move(item)}};
}

hrx::CVec3<double> readCorner(const Json& corners, const JsonPlace& place, const std::string& key) {
    const auto found = corners.find(key);
    if (found == corners.end())
        refuse(place, filled(Words::tr("expected the key \"%1\""), key));
    const auto [x, y, z] =
        readTuple(*found, JsonPlace(place, key), 3, 3, QT_TRANSLATE_NOOP("Words", "a point [x, y, z]"));
    return {x, y, z};
}

QString foundText(const Json& value) {
    switch (value.type()) {
    case Json::value_t::null:
        return Words::tr("null");
    case Json::value_t::object:
        return Words::tr("an object");
    case Json::value_t::array:
        return Words::tr("a list of %1").arg(value.size());
    case Json::value_t::string:
        return Words::tr("a string");
    case Json::value_t::boolean:
        return Words::tr("a boolean");
    default:
        return Words::tr("a number");
    }
}

} // namespace

void refuseType(const Json& value, const JsonPlace& place, const std::string& expected) {
    refuse(place, filled(Words::tr("expected %1, found %2"), expected, foundText(value)));
}

std::wstring wideText(const std::string& utf8) {
    return QString::fromStdString(utf8).toStdWString();
}

Codec<bool> flag() {
    return {[] {
                return Json{{"type", "boolean"}};
            },
            [](const Json& value, const JsonPlace& place) {
                if (!value.is_boolean())
                    refuseType(value, place, filled(Words::tr("true or false")));
                return value.get<bool>();
            }};
}

Codec<double> number() {
    return {numberSchema, readNumber};
}

Codec<double> extent() {
    return {[] {
                return Json{{"type", "number"}, {"minimum", 0}, {"maximum", kGreatest}};
            },
            [](const Json& value, const JsonPlace& place) {
                const double result = readNumber(value, place);
                if (result < 0.0)
                    refuse(place, filled(Words::tr("expected a number that is not negative")));
                return result;
            }};
}

Codec<std::wstring> text() {
    return {[] {
                return Json{{"type", "string"}};
            },
            [](const Json& value, const JsonPlace& place) {
                if (!value.is_string())
                    refuseType(value, place, filled(Words::tr("a text")));
                return wideText(value.get_ref<const std::string&>());
            }};
}

Codec<hrx::CVec2<double>> planPoint() {
    return {[] { return tupleSchema(2, 2); },
            [](const Json& value, const JsonPlace& place) {
                const auto [x, y, unused] =
                    readTuple(value, place, 2, 2, QT_TRANSLATE_NOOP("Words", "a point [x, y]"));
                static_cast<void>(unused);
                return hrx::CVec2<double>{x, y};
            }};
}

Codec<hrx::CVec3<double>> point() {
    return {[] { return tupleSchema(2, 3); },
            [](const Json& value, const JsonPlace& place) {
                const auto [x, y, z] =
                    readTuple(value, place, 2, 3, QT_TRANSLATE_NOOP("Words", "a point [x, y] or [x, y, z]"));
                return hrx::CVec3<double>{x, y, z};
            }};
}

Codec<std::vector<hrx::PolyPt2d>> polyline() {
    return {[] { return listSchema(tupleSchema(2, 3)); },
            [](const Json& value, const JsonPlace& place) {
                return readList<hrx::PolyPt2d>(value, place, [](const Json& item, const JsonPlace& at) {
                    const auto [x, y, bulge] = readTuple(
                        item, at, 2, 3, QT_TRANSLATE_NOOP("Words", "a point [x, y] or [x, y, bulge]"));
                    return hrx::PolyPt2d{x, y, bulge};
                });
            }};
}

Codec<std::vector<hrx::CVec2<double>>> axisPositions() {
    const auto schema = [] { return listSchema({{"anyOf", {numberSchema(), tupleSchema(2, 2)}}}); };
    return {schema, [](const Json& value, const JsonPlace& place) {
                return readList<hrx::CVec2<double>>(value, place, [](const Json& item, const JsonPlace& at) {
                    if (item.is_number())
                        return hrx::CVec2<double>{readNumber(item, at), 0.0};
                    const auto [x, y, unused] =
                        readTuple(item, at, 2, 2, QT_TRANSLATE_NOOP("Words", "a number or a point [x, y]"));
                    static_cast<void>(unused);
                    return hrx::CVec2<double>{x, y};
                });
            }};
}

Codec<std::optional<hrx::CExtents3>> extents() {
    const auto schema = [] {
        return Json{{"type", "object"},
                    {"required", {"low", "high"}},
                    {"properties", {{"low", tupleSchema(3, 3)}, {"high", tupleSchema(3, 3)}}},
                    {"additionalProperties", false}};
    };
    return {schema, [](const Json& value, const JsonPlace& place) {
                if (!value.is_object())
                    refuseType(value, place, filled(Words::tr("an object with \"low\" and \"high\"")));
                hrx::CExtents3 result;
                result.low = readCorner(value, place, "low");
                result.high = readCorner(value, place, "high");
                if (value.size() > 2)
                    refuse(place, filled(Words::tr("expected no other keys than \"low\" and \"high\"")));
                return std::optional(result);
            }};
}

std::int64_t readInteger(const Json& value, const JsonPlace& place, std::int64_t lowest,
                         std::int64_t highest) {
    constexpr double exactUpTo = 9007199254740991.0; // the next one stands for its neighbour as well
    std::int64_t result = 0;
    bool fits = true;
    if (value.is_number_unsigned()) {
        const auto number = value.get<std::uint64_t>();
        fits = number <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
        result = static_cast<std::int64_t>(number);
    } else if (value.is_number_integer()) {
        result = value.get<std::int64_t>();
    } else if (value.is_number_float()) {
        const auto number = value.get<double>();
        if (std::trunc(number) != number)
            refuse(place, filled(Words::tr("expected an integer, found a fraction")));
        fits = std::abs(number) <= exactUpTo;
        result = fits ? static_cast<std::int64_t>(number) : 0;
    } else {
        refuseType(value, place, filled(Words::tr("an integer")));
    }
    if (!fits || result < lowest || result > highest)
        refuse(place, filled(Words::tr("expected an integer from %1 to %2"), lowest, highest));
    return result;
}

Json integerSchema(std::int64_t lowest, std::int64_t highest) {
    return {{"type", "integer"}, {"minimum", lowest}, {"maximum", highest}};
}

std::int64_t readCode(const Json& value, const JsonPlace& place, const CodeNames& names, std::int64_t lowest,
                      std::int64_t highest) {
    if (value.is_number())
        return readInteger(value, place, lowest, highest);

    std::string choice;
    std::vector<std::string> known;
    for (const auto& [name, number] : names) {
        choice += (choice.empty() ? "\"" : ", \"") + name + "\"";
        known.push_back(name);
    }
    const std::string expected = filled(Words::tr("one of %1, or an integer code"), choice);
    if (!value.is_string())
        refuseType(value, place, expected);

    const auto& given = value.get_ref<const std::string&>();
    const auto named = std::find_if(names.begin(), names.end(),
                                    [&given](const auto& candidate) { return candidate.first == given; });
    if (named != names.end())
        return named->second;
    refuse(place, filled(Words::tr("expected %1"), expected),
           nearestName(given, known).value_or(std::string()));
}

Json codeSchema(const CodeNames& names, std::int64_t lowest, std::int64_t highest) {
    Json known = Json::array();
    for (const auto& [name, number] : names)
        known.push_back(name);
    return {{"anyOf", {{{"enum", std::move(known)}}, integerSchema(lowest, highest)}}};
}

} // namespace firecheck
