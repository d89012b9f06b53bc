#include "site_file/changed_text.h"

#include "json/json_places.h"
#include "json/parse_json.h"
#include "site_file/site_keys.h"

#include <algorithm>
#include <map>
#include <optional>
#include <stdexcept>
#include <vector>

namespace firecheck {

namespace {

const std::string kListPointer = "/" + kObjectsKey;

/// As people write values in a line: [1, 2], {"a": 1}.
std::string inlineText(const Json& value) {
    if (!value.is_structured())
        return value.dump();
    std::string text;
    for (const auto& [key, inner] : value.items())
        text += (text.empty() ? "" : ", ") + (value.is_object() ? Json(key).dump() + ": " : std::string()) +
                inlineText(inner);
    return value.is_object() ? "{" + text + "}" : "[" + text + "]";
}

std::string pointerTo(std::size_t index) {
    return kListPointer + "/" + std::to_string(index);
}

std::string pointerTo(const std::string& key) {
    Json::json_pointer pointer;
    pointer.push_back(key);
    return pointer.to_string();
}

std::vector<std::string> keysOf(const Json& object) {
    std::vector<std::string> keys;
    for (const auto& item : object.items())
        keys.push_back(item.key());
    return keys;
}

/// Whether further keys stand behind those that are left, which stand in their order.
bool keepsOrder(const Json& before, const Json& after) {
    std::vector<std::string> expected;
    for (const std::string& key : keysOf(before))
        if (after.contains(key))
            expected.push_back(key);
    const std::vector<std::string> keys = keysOf(after);
    return std::equal(expected.begin(), expected.end(), keys.begin());
}

/// An object as text with other values, fewer keys, and further ones. Each of its members is what leads to
/// its value, which ends with the key and a colon, and the value.
std::string changedObject(const std::string& text, const Json& before, const Json& after) {
    std::vector<std::string> pointers;
    for (const std::string& key : keysOf(before))
        pointers.push_back(pointerTo(key));
    const std::vector<ByteRange> values = jsonRanges(text, pointers);
    std::string result = "{";
    std::size_t end = 1;
    auto value = values.begin();
    bool isFirst = true;
    for (const auto& [key, old] : before.items()) {
        const std::string lead = text.substr(end, value->begin - end);
        end = value->end;
        if (after.contains(key)) {
            const Json& now = after.at(key);
            const bool hasComma = value != values.begin();
            result += isFirst && hasComma ? lead.substr(lead.find('"')) : lead;
            result += old == now ? text.substr(value->begin, value->end - value->begin) : inlineText(now);
            isFirst = false;
        }
        ++value;
    }
    for (const auto& [key, now] : after.items())
        if (!before.contains(key)) {
            result += (isFirst ? "" : ", ") + Json(key).dump() + ": " + inlineText(now);
            isFirst = false;
        }
    return result + text.substr(end);
}

/// The list of objects of a site file as text, cut into its pieces.
class ListText {
public:
    ListText(const std::string& text, const Json& before) : m_text(text), m_before(before) {
        std::vector<std::string> pointers{kListPointer};
        for (std::size_t i = 0; i < before.size(); ++i)
            pointers.push_back(pointerTo(i));
        m_objects = jsonRanges(text, pointers);
        m_list = m_objects.front();
        m_objects.erase(m_objects.begin());
    }

    std::string head() const {
        return m_text.substr(0, m_objects.empty() ? m_list.begin + 1 : m_objects.front().begin);
    }
    std::string tail() const {
        return m_text.substr(m_objects.empty() ? m_list.end - 1 : m_objects.back().end);
    }

    /// What stands before an object of the list that is not the first: a comma and mostly a line break.
    std::string separatorBefore(std::size_t index) const {
        return between(m_objects[index - 1].end, m_objects[index].begin);
    }
    std::string usualSeparator() const {
        return m_objects.size() < 2 ? ", " : separatorBefore(m_objects.size() - 1);
    }

    std::string object(std::size_t index, const Json& after) const {
        const std::string text = between(m_objects[index].begin, m_objects[index].end);
        const Json& before = m_before[index];
        if (before == after)
            return text;
        return keepsOrder(before, after) ? changedObject(text, before, after) : inlineText(after);
    }

private:
    std::string between(std::size_t begin, std::size_t end) const {
        return m_text.substr(begin, end - begin);
    }

    const std::string& m_text;
    const Json& m_before;
    ByteRange m_list;
    std::vector<ByteRange> m_objects;
};

/// Where the objects of a list stood in an earlier one, as far as they still stand in the same order.
std::vector<std::optional<std::size_t>> formerIndices(const Json& before, const Json& after) {
    std::map<Json, std::size_t> indices;
    for (std::size_t i = 0; i < before.size(); ++i)
        indices[before[i].at("handle")] = i;
    std::vector<std::optional<std::size_t>> result;
    std::size_t next = 0;
    for (const Json& object : after) {
        const auto known = indices.find(object.at("handle"));
        const bool isKept = known != indices.end() && known->second >= next;
        result.push_back(isKept ? std::optional(known->second) : std::nullopt);
        if (isKept)
            next = known->second + 1;
    }
    return result;
}

} // namespace

std::string changedSiteText(const std::string& text, const Json& before, const Json& after) {
    const ListText list(text, before.at(kObjectsKey));
    const Json& now = after.at(kObjectsKey);
    const auto former = formerIndices(before.at(kObjectsKey), now);
    std::string result = list.head();
    for (std::size_t i = 0; i < now.size(); ++i) {
        if (i > 0)
            result += former[i].value_or(0) > 0 ? list.separatorBefore(*former[i]) : list.usualSeparator();
        result += former[i] ? list.object(*former[i], now[i]) : inlineText(now[i]);
    }
    result += list.tail();
    if (parseJson(result, "the changed site") != after)
        throw std::logic_error("the changed site reads otherwise than it was judged");
    return result;
}

std::string siteText(const Json& site) {
    std::string text;
    for (const auto& [key, value] : site.items()) {
        text += (text.empty() ? "{\n  " : ",\n  ") + Json(key).dump() + ": ";
        if (key != kObjectsKey) {
            text += inlineText(value);
            continue;
        }
        std::string list;
        for (const Json& object : value)
            list += (list.empty() ? "\n    " : ",\n    ") + inlineText(object);
        text += "[" + list + (list.empty() ? "]" : "\n  ]");
    }
    return text + "\n}\n";
}

} // namespace firecheck
