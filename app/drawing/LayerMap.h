#pragma once

#include "json/Json.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace firecheck {

/// One row of a table of meanings: which layers and blocks, and what their elements are.
struct LayerRow {
    std::vector<std::string> layers; ///< patterns as the table has them
    std::vector<std::string> blocks;
    Json values; ///< "class" and any keys that objects of the class have in site files

    /// Elements that are no part of the site.
    bool isIgnored() const;
};

/// What layers and blocks of a drawing mean.
class LayerMap {
public:
    /// That of the checker, in English and Chinese.
    static const LayerMap& convention();
    /// Its text, as a template for others.
    static std::string conventionText();
    /// A planner's table. Throws InputError, which starts with the file's name and the place.
    static LayerMap load(const std::string& fileName);

    const std::vector<LayerRow>& rows() const { return m_rows; }
    /// The first row that fits; null for none.
    const LayerRow* rowOfLayer(const std::string& name) const;
    const LayerRow* rowOfBlock(const std::string& name) const;

    /// The unit that the drawing is in whatever it says: its length in mm, and its code in DXF.
    struct Unit {
        double millimetres = 1.0;
        int code = 4;
    };
    const std::optional<Unit>& unit() const { return m_unit; }

    /// The value of a key that nothing else gives; null for none.
    const Json* assumed(const std::string& className, const std::string& key) const;
    /// The keys that an attribute may stand for; empty where the table does not name it.
    std::vector<std::string> keysOfAttribute(const std::string& tag) const;
    /// What a word stands for; the word itself unless the table names it.
    std::string meaning(const std::string& word) const;

private:
    friend class LayerMapReader;

    std::vector<LayerRow> m_rows;
    std::optional<Unit> m_unit;
    Json m_assumed = Json::object();
    std::map<std::string, std::vector<std::string>> m_attributes; ///< by nameKey
    std::map<std::string, std::string> m_words;
};

/// Names are compared without their letter case; blanks, hyphens and underscores are the same.
std::string nameKey(const std::string& name);

} // namespace firecheck
