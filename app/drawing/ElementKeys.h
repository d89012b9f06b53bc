#pragma once

#include "drawing/LayerMap.h"
#include "drawing/element_geometry.h"

#include <map>
#include <string>
#include <vector>

namespace firecheck {

/// The keys of one class of site files, as attributes of a drawing give them: by texts.
class ElementKeys {
public:
    /// Null for a name that is no class.
    static const ElementKeys* ofClass(const std::string& name);
    /// The class that a text in a drawing names: "PREFAB_HOUSE" is prefabHouse. Null for none.
    static const ElementKeys* ofText(const std::string& text);

    const SiteClass& siteClass() const { return *m_class; }
    ElementPlan plan() const { return m_plan; }
    bool has(const std::string& key) const;
    std::vector<std::string> requiredKeys() const;
    /// All keys in the order of the documentation.
    const std::vector<KeyShape>& shapes() const { return m_shapes; }

    /// The key that an attribute stands for, by its own name or by the tables; empty for none.
    std::string keyOf(const std::string& tag, const std::vector<const LayerMap*>& maps) const;
    /// The value of the key that a text stands for. Lengths without a unit are in that of the drawing. A text
    /// that makes no sense is left to the reader of sites, which refuses it.
    Json valueOf(const std::string& key, const std::string& text, double millimetresPerUnit,
                 const std::vector<const LayerMap*>& maps) const;

private:
    enum class Type { Text, Number, Flag, Code, List };

    explicit ElementKeys(const SiteClass& siteClass);

    const SiteClass* m_class;
    ElementPlan m_plan;
    std::vector<KeyShape> m_shapes;
    std::map<std::string, Type> m_types;
    std::map<std::string, std::string> m_keysByTag;
};

} // namespace firecheck
