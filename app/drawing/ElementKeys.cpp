#include "drawing/ElementKeys.h"

#include "InputError.h"
#include "drawing/json_number.h"
#include "json/parse_json.h"
#include "site_file/site_classes.h"
#include "site_file/site_keys.h"

#include <QString>

#include <charconv>
#include <cmath>
#include <memory>
#include <optional>
#include <set>

namespace firecheck {

namespace {

const std::set<std::string>& lengthKeys() {
    static const std::set<std::string> keys = {
        "width",     "length",    "depth",     "height",    "elevation",      "floorDepth",
        "radius",    "leafWidth", "postWidth", "postDepth", "frontJibLength", "counterJibLength",
        "jibHeight", "mastWidth", "jibWidth",  "jibDepth"};
    return keys;
}

bool isInMetres(const std::string& key) {
    return QString::fromStdString(key).endsWith("Metres");
}

/// Tags are upper case and cannot have blanks: "LEAF_WIDTH" is leafWidth. So are the words for classes.
std::string tagKey(const std::string& tag) {
    return QString::fromStdString(nameKey(tag)).remove('-').toStdString();
}

struct TextNumber {
    double value;
    double millimetres = 0.0; ///< of its unit; 0 for none
};

std::optional<TextNumber> numberOf(const std::string& text) {
    const QString trimmed = QString::fromStdString(text).trimmed();
    const std::string plain = trimmed.toStdString();
    double value = 0.0;
    const char* const first = plain.data() + (plain.rfind('+', 0) == 0 ? 1 : 0);
    const auto parsed = std::from_chars(first, plain.data() + plain.size(), value);
    if (parsed.ec != std::errc() || !std::isfinite(value))
        return std::nullopt;
    const QString unit =
        QString::fromStdString(std::string(parsed.ptr, plain.data() + plain.size())).trimmed();
    static const std::map<QString, double> units = {
        {"", 0.0},     {"mm", 1.0},    {"MM", 1.0}, {"毫米", 1.0}, {"cm", 10.0}, {"m", 1000.0},
        {"M", 1000.0}, {"米", 1000.0}, {"层", 0.0}, {"F", 0.0},    {"°", 0.0}};
    const auto known = units.find(unit);
    if (known == units.end())
        return std::nullopt;
    return TextNumber{value, known->second};
}

/// "0, 6000, 12000" or JSON.
Json listOf(const std::string& text) {
    const std::string list = text.find('[') == std::string::npos ? "[" + text + "]" : text;
    try {
        return parseJson(list, "attribute");
    } catch (const InputError&) {
        return text;
    }
}

} // namespace

ElementKeys::ElementKeys(const SiteClass& siteClass)
    : m_class(&siteClass), m_plan(elementPlan(siteClass)),
      m_shapes(objectKeys(siteClass, ObjectRole::InDocument)) {
    for (const KeyShape& shape : m_shapes) {
        const Json schema = shape.schema();
        const std::string type = schema.value("type", std::string());
        m_types[shape.key] = !shape.names.empty()                    ? Type::Code
                             : type == "number" || type == "integer" ? Type::Number
                             : type == "boolean"                     ? Type::Flag
                             : type == "string"                      ? Type::Text
                                                                     : Type::List;
        m_keysByTag[tagKey(shape.key)] = shape.key;
    }
}

const ElementKeys* ElementKeys::ofClass(const std::string& name) {
    static std::map<std::string, std::unique_ptr<ElementKeys>> known;
    const auto found = known.find(name);
    if (found != known.end())
        return found->second.get();
    for (const SiteClass& candidate : siteClasses())
        if (candidate.name == name)
            return known.emplace(name, std::unique_ptr<ElementKeys>(new ElementKeys(candidate)))
                .first->second.get();
    return nullptr;
}

const ElementKeys* ElementKeys::ofText(const std::string& text) {
    static const auto names = [] {
        std::map<std::string, std::string> byTag;
        for (const SiteClass& siteClass : siteClasses())
            byTag[tagKey(siteClass.name)] = siteClass.name;
        return byTag;
    }();
    const auto name = names.find(tagKey(text));
    return name == names.end() ? nullptr : ofClass(name->second);
}

bool ElementKeys::has(const std::string& key) const {
    return m_types.count(key) != 0;
}

std::vector<std::string> ElementKeys::requiredKeys() const {
    std::vector<std::string> keys;
    for (const KeyShape& shape : m_shapes)
        if (shape.required)
            keys.push_back(shape.key);
    return keys;
}

std::string ElementKeys::keyOf(const std::string& tag, const std::vector<const LayerMap*>& maps) const {
    for (const LayerMap* map : maps)
        for (const std::string& key : map->keysOfAttribute(tag))
            if (has(key))
                return key;
    const auto own = m_keysByTag.find(tagKey(tag));
    return own == m_keysByTag.end() ? std::string() : own->second;
}

Json ElementKeys::valueOf(const std::string& key, const std::string& text, double millimetresPerUnit,
                          const std::vector<const LayerMap*>& maps) const {
    const Type type = m_types.at(key);
    if (type == Type::Text)
        return text;
    if (type == Type::List)
        return listOf(text);
    std::string word = text;
    for (const LayerMap* map : maps)
        if (word == text)
            word = map->meaning(text);
    if (type == Type::Flag) {
        const std::string upper = nameKey(word);
        if (upper == "TRUE" || upper == "1")
            return true;
        return upper == "FALSE" || upper == "0" ? Json(false) : Json(text);
    }
    if (type == Type::Code)
        for (const KeyShape& shape : m_shapes)
            if (shape.key == key)
                for (const auto& [name, code] : shape.names)
                    if (nameKey(name) == nameKey(word))
                        return name;
    const auto number = numberOf(word);
    if (!number)
        return word;
    double factor = 1.0;
    if (isInMetres(key))
        factor = number->millimetres == 0.0 ? 1.0 : number->millimetres / 1000.0;
    else if (lengthKeys().count(key) != 0)
        factor = number->millimetres == 0.0 ? millimetresPerUnit : number->millimetres;
    return jsonNumber(tidy(number->value * factor));
}

} // namespace firecheck
