#include "site_file/site_schema.h"

#include "site_file/site_classes.h"
#include "site_file/site_keys.h"

namespace {

/// The definition of one class; `class` is fixed to its name.
Json classSchema(const SiteClass& siteClass, ObjectRole role) {
    Json schema = {{"description", siteClass.doc}};
    schema.update(objectSchema(objectKeys(siteClass, role)));
    schema["properties"][kClassKey] = {{"const", siteClass.name}};
    schema.update(siteClass.furtherSchema);
    return schema;
}

/// Chooses the definition by `class`, so that a validator speaks of the class that was meant.
Json choiceByClass(const std::string& definitionSuffix) {
    Json names = Json::array();
    Json choices = Json::array();
    for (const SiteClass& siteClass : siteClasses()) {
        names.push_back(siteClass.name);
        Json isOfClass = {{"properties", {{kClassKey, {{"const", siteClass.name}}}}}};
        Json definition = {{"$ref", "#/definitions/" + siteClass.name + definitionSuffix}};
        choices.push_back({{"if", std::move(isOfClass)}, {"then", std::move(definition)}});
    }
    return {{"type", "object"},
            {"required", {kClassKey}},
            {"properties", {{kClassKey, {{"enum", std::move(names)}}}}},
            {"allOf", std::move(choices)}};
}

} // namespace

Json siteSchema() {
    const std::string viewSuffix = "View";
    Json definitions = {{"object", choiceByClass("")}, {"secondView", choiceByClass(viewSuffix)}};
    for (const SiteClass& siteClass : siteClasses()) {
        definitions[siteClass.name] = classSchema(siteClass, ObjectRole::InDocument);
        definitions[siteClass.name + viewSuffix] = classSchema(siteClass, ObjectRole::SecondView);
    }
    Json schema = {
        {"$schema", "http://json-schema.org/draft-07/schema#"},
        {"title", "Construction site layout"},
        {"description", "Lengths in millimetres, angles in degrees, unless a key says otherwise."}};
    schema.update(objectSchema(siteKeys()));
    schema["definitions"] = std::move(definitions);
    return schema;
}
