#include "edit/class_table_json.h"

#include "site_file/site_classes.h"
#include "site_file/site_keys.h"

namespace firecheck {

namespace {

/// What a form offers for values of the schema.
std::string kindOf(const Json& schema) {
    if (schema.contains("$ref"))
        return "secondView";
    if (schema.contains("anyOf"))
        return schema.at("anyOf").front().contains("enum") ? "code" : "other";
    const std::string type = schema.at("type");
    if (type == "boolean")
        return "flag";
    if (type == "string")
        return "text";
    if (type != "array")
        return type;
    if (schema.contains("maxItems"))
        return "point";
    return schema.at("items").value("type", std::string()) == "array" ? "points" : "list";
}

Json keyJson(const KeyShape& shape);

/// The keys of a value that is an object itself, by its schema.
Json innerKeysJson(const Json& schema) {
    const Json required = schema.value("required", Json::array());
    Json keys = Json::array();
    for (const auto& [key, inner] : schema.at("properties").items()) {
        KeyShape shape;
        shape.key = key;
        shape.doc = inner.value("description", std::string());
        shape.required = std::find(required.begin(), required.end(), Json(key)) != required.end();
        shape.schema = [value = inner] { return value; };
        if (inner.contains("default"))
            shape.defaultValue = inner.at("default");
        keys.push_back(keyJson(shape));
    }
    return keys;
}

Json keyJson(const KeyShape& shape) {
    const Json schema = shape.schema();
    Json json{{"key", shape.key}, {"doc", shape.doc}, {"kind", kindOf(schema)}, {"required", shape.required}};
    if (shape.defaultValue)
        json["default"] = *shape.defaultValue;
    if (json["kind"] == "code")
        json["names"] = schema.at("anyOf").front().at("enum");
    if (json["kind"] == "object")
        json["keys"] = innerKeysJson(schema);
    return json;
}

} // namespace

Json classTableJson() {
    Json classes = Json::array();
    for (const SiteClass& siteClass : siteClasses()) {
        Json keys = Json::array();
        for (const KeyShape& shape : objectKeys(siteClass, ObjectRole::InDocument))
            if (shape.key != kClassKey)
                keys.push_back(keyJson(shape));
        classes.push_back({{"name", siteClass.name}, {"doc", siteClass.doc}, {"keys", std::move(keys)}});
    }
    return classes;
}

} // namespace firecheck
