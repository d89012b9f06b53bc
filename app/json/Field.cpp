#include "json/Field.h"

#include "text/nearest_name.h"
#include "text/shortened.h"
#include "text/words.h"

#include <algorithm>

namespace firecheck {

namespace {

[[noreturn]] void refuseKey(const JsonPlace& place, const std::string& key,
                            const std::vector<KeyShape>& shapes) {
    std::vector<std::string> known;
    std::string all;
    for (const KeyShape& shape : shapes) {
        known.push_back(shape.key);
        all += (all.empty() ? "" : ", ") + shape.key;
    }
    const std::string near = nearestName(key, known).value_or(std::string());
    refuse(place,
           near.empty() ? filled(Words::tr("unknown key \"%1\"; the keys are %2"), shortened(key), all)
                        : filled(Words::tr("unknown key \"%1\""), shortened(key)),
           near);
}

} // namespace

void checkKeys(const Json& object, const JsonPlace& place, const std::vector<KeyShape>& shapes) {
    if (!object.is_object())
        refuseType(object, place, filled(Words::tr("an object")));
    for (const auto& [key, value] : object.items()) {
        const auto& given = key;
        if (std::none_of(shapes.begin(), shapes.end(),
                         [&given](const KeyShape& shape) { return shape.key == given; }))
            place.attempt([&] { refuseKey(JsonPlace(place, given), given, shapes); });
    }
    for (const KeyShape& shape : shapes)
        if (shape.required && !object.contains(shape.key))
            place.attempt([&] {
                refuse(place, filled(Words::tr("expected the key \"%1\" (%2)"), shape.key,
                                     Words::tr(shape.doc.c_str())));
            });
}

Json objectSchema(const std::vector<KeyShape>& shapes) {
    Json required = Json::array();
    Json properties = Json::object();
    for (const KeyShape& shape : shapes) {
        Json property = {{"description", shape.doc}};
        property.update(shape.schema());
        if (shape.defaultValue)
            property["default"] = *shape.defaultValue;
        properties[shape.key] = std::move(property);
        if (shape.required)
            required.push_back(shape.key);
    }
    Json schema = {{"type", "object"}};
    if (!required.empty())
        schema["required"] = std::move(required);
    schema["properties"] = std::move(properties);
    schema["additionalProperties"] = false;
    return schema;
}

} // namespace firecheck
