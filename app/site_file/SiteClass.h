#pragma once

#include "cad/UdDb3dsImage.h"
#include "json/Field.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

namespace firecheck {

/// What objects of a site file say about each other, to be set when all of them exist.
class ObjectLinks {
public:
    using ObjectsByHandle = std::map<long long, UdDbObject*>;
    using Link = std::function<void(const ObjectsByHandle&)>;

    void add(Link link) { m_links.push_back(std::move(link)); }
    std::size_t count() const { return m_links.size(); }
    /// Drops those added after the first `count`, as of an object that was not kept.
    void keepFirst(std::size_t count) { m_links.resize(count); }
    void setAll(const ObjectsByHandle& objects, const JsonPlace& top) const {
        for (const Link& link : m_links)
            top.attempt([&] { link(objects); });
    }

private:
    std::vector<Link> m_links;
};

/// One class of a site file: its keys, and how an object is made of their values.
struct SiteClass {
    enum class Identifier { Fixed, Required, None };

    std::string name;
    std::string doc;
    Identifier identifierUse = Identifier::Fixed;
    std::string identifier; ///< unless the object gives another one
    bool isModel = false;   ///< a 3-D model, which may also be the second view of an object
    std::vector<KeyShape> keys;
    SchemaMaker furtherSchema; ///< what the schema demands beside the keys, if anything

    using Create = std::function<std::unique_ptr<UdDbObject>(
        const Json& object, const JsonPlace& place, const std::wstring& identifier, ObjectLinks& links)>;
    Create create;
};

/// What a class does with the values beyond copying them: derives defaults, refuses combinations.
template <class Params> using Complete = std::function<void(Params&, const Json&, const JsonPlace&)>;

/// Describes the class Object, which is made of Params and an identifier. An empty identifier must be given
/// by the object.
template <class Object, class Params>
SiteClass siteClass(std::string name, std::string identifier, std::string doc, Fields<Params> fields,
                    Complete<Params> complete = {}) {
    SiteClass result;
    result.name = std::move(name);
    result.doc = std::move(doc);
    result.identifierUse =
        identifier.empty() ? SiteClass::Identifier::Required : SiteClass::Identifier::Fixed;
    result.identifier = std::move(identifier);
    result.isModel = std::is_base_of_v<UdDb3dsImage, Object>;
    result.keys = keyShapes(fields);
    result.create = [fields = std::move(fields), complete = std::move(complete)](
                        const Json& object, const JsonPlace& place, const std::wstring& identifierGiven,
                        ObjectLinks&) -> std::unique_ptr<UdDbObject> {
        Params params;
        readFields(params, fields, object, place);
        if (complete)
            complete(params, object, place);
        if constexpr (std::is_constructible_v<Object, const Params&, std::wstring>)
            return std::make_unique<Object>(params, identifierGiven);
        else
            return std::make_unique<Object>(identifierGiven, params);
    };
    return result;
}

} // namespace firecheck
