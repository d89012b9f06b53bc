#include "site_file/site_reference.h"

#include "site_file/site_classes.h"
#include "site_file/site_keys.h"

#include <algorithm>

namespace firecheck {

namespace {

std::string tupleText(const Json& schema) {
    const std::size_t fewest = schema.value("minItems", std::size_t{0});
    const std::size_t most = schema.value("maxItems", std::size_t{0});
    std::string text = std::to_string(fewest);
    if (most > fewest)
        text += " or " + std::to_string(most);
    return text + " numbers";
}

/// What a schema allows, in a few words.
std::string valueText(const Json& schema) {
    if (schema.contains("$ref"))
        return "object";
    if (schema.contains("anyOf")) {
        std::string text;
        for (const Json& alternative : schema["anyOf"])
            text += (text.empty() ? "" : " or ") + valueText(alternative);
        return text;
    }
    if (schema.contains("enum")) {
        std::string text;
        for (const Json& name : schema["enum"])
            text += (text.empty() ? "`" : ", `") + name.get<std::string>() + "`";
        return text;
    }
    const std::string type = schema.at("type");
    if (type == "array")
        return schema.contains("maxItems") ? tupleText(schema) : "list of " + valueText(schema["items"]);
    if (type == "object") {
        std::string text = "object of";
        for (const auto& [key, value] : schema["properties"].items())
            text += (text.back() == 'f' ? " `" : ", `") + key + "`";
        return text;
    }
    if (type == "string")
        return "text";
    if (type == "boolean")
        return "true or false";
    return type;
}

std::string rowText(const KeyShape& shape) {
    const std::string standIn = shape.required       ? "required"
                                : shape.defaultValue ? "`" + shape.defaultValue->dump() + "`"
                                                     : "";
    return "| `" + shape.key + "` | " + valueText(shape.schema()) + " | " + standIn + " | " + shape.doc +
           " |\n";
}

std::string table(const std::vector<KeyShape>& shapes) {
    std::string text = "| Key | Value | Default | Meaning |\n|---|---|---|---|\n";
    for (const KeyShape& shape : shapes)
        text += rowText(shape);
    return text + "\n";
}

bool contains(const std::vector<KeyShape>& shapes, const std::string& key) {
    return std::any_of(shapes.begin(), shapes.end(),
                       [&key](const KeyShape& shape) { return shape.key == key; });
}

std::string classText(const SiteClass& siteClass) {
    std::string text = "## " + siteClass.name + "\n\n" + siteClass.doc;
    if (siteClass.identifierUse == SiteClass::Identifier::Fixed)
        text += "; `" + siteClass.identifier + "`";
    else if (siteClass.identifierUse == SiteClass::Identifier::Required)
        text += "; `identifier` is required";
    text += "\n\n";
    return siteClass.keys.empty() ? text : text + table(siteClass.keys);
}

} // namespace

std::string siteReference() {
    const SiteClass* example = &siteClasses().front();
    std::vector<KeyShape> common;
    for (const KeyShape& shape : objectKeys(*example, ObjectRole::InDocument))
        if (!contains(example->keys, shape.key))
            common.push_back(shape);
    std::string text = "# Classes and keys of site files\n\n"
                       "Lengths are in millimetres and angles in degrees unless a key says otherwise.\n"
                       "`firecheck site-schema --format markdown` writes this page.\n\n"
                       "## Every object\n\n" +
                       table(common);
    for (const SiteClass& siteClass : siteClasses())
        text += classText(siteClass);
    text.pop_back();
    return text;
}

} // namespace firecheck
