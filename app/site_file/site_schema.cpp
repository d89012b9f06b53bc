#include "site_file/site_schema.h"

#include "site_file/site_classes.h"
#include "site_file/site_keys.h"

namespace firecheck {

namespace {

/// Keys that many classes share are defined once.
class KeyDefinitions {
public:
    /// A reference to the definition of `key` with that schema, which is made when there is none.
    Json reference(const std::string& key, const Json& schema) {
        std::string name = key + "Key";
        for (int number = 2; m_definitions.contains(name) && m_definitions[name] != schema; ++number)
            name = key + "Key" + std::to_string(number);
        m_definitions[name] = schema;
        return {{"$ref", "#/definitions/" + name}};
    }

    const Json& definitions() const { return m_definitions; }

private:
    Json m_definitions = Json::object();
};

/// The definition of one class; `class` is fixed to its name.
Json classSchema(const SiteClass& siteClass, ObjectRole role, KeyDefinitions& keys) {
    Json schema = {{"description", siteClass.doc}};
    schema.update(objectSchema(objectKeys(siteClass, role)));
    for (auto& [key, property] : schema["properties"].items())
        property = keys.reference(key, property);
    schema["properties"][kClassKey] = {{"const", siteClass.name}};
    if (siteClass.furtherSchema)
        schema.update(siteClass.furtherSchema());
    return schema;
}

std::string definitionName(const SiteClass& siteClass, ObjectRole role) {
    return siteClass.name + (role == ObjectRole::InDocument ? "" : "View");
}

/// Chooses the definition by `class`, so that a validator speaks of the class that was meant.
Json choiceByClass(ObjectRole role) {
    Json names = Json::array();
    Json choices = Json::array();
    for (const SiteClass& siteClass : siteClasses()) {
        if (!allows(role, siteClass))
            continue;
        names.push_back(siteClass.name);
        Json isOfClass = {{"properties", {{kClassKey, {{"const", siteClass.name}}}}}};
        Json definition = {{"$ref", "#/definitions/" + definitionName(siteClass, role)}};
        choices.push_back({{"if", std::move(isOfClass)}, {"then", std::move(definition)}});
    }
    return {{"type", "object"},
            {"required", {kClassKey}},
            {"properties", {{kClassKey, {{"enum", std::move(names)}}}}},
            {"allOf", std::move(choices)}};
}

} // namespace

Json siteSchema() {
    Json definitions = {{"object", choiceByClass(ObjectRole::InDocument)},
                        {"secondView", choiceByClass(ObjectRole::SecondView)}};
    KeyDefinitions keys;
    for (const ObjectRole role : {ObjectRole::InDocument, ObjectRole::SecondView})
        for (const SiteClass& siteClass : siteClasses())
            if (allows(role, siteClass))
                definitions[definitionName(siteClass, role)] = classSchema(siteClass, role, keys);
    definitions.update(keys.definitions());

    Json schema = {
        {"$schema", "http://json-schema.org/draft-07/schema#"},
        {"title", "Construction site layout"},
        {"description", "Lengths in millimetres, angles in degrees, unless a key says otherwise."}};
    schema.update(objectSchema(siteKeys()));
    schema["definitions"] = std::move(definitions);
    return schema;
}

} // namespace firecheck
