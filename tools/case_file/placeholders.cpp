#include "case_file/placeholders.h"

#include "InputError.h"

namespace firecheck {

namespace {

const std::string kEachKey = "each";

/// Replaces the placeholder of one key and notes that there was one.
class Replacement {
public:
    Replacement(const std::string& key, const Json& value)
        : m_placeholder("{" + key + "}"), m_value(value),
          m_text(value.is_string() ? value.get<std::string>() : value.dump()) {}

    Json in(const Json& value) {
        if (value.is_string() && value == m_placeholder) {
            m_isUsed = true;
            return m_value;
        }
        if (value.is_string())
            return inText(value.get<std::string>());
        Json result = value;
        if (value.is_array()) {
            for (Json& item : result)
                item = in(item);
        } else if (value.is_object()) {
            result.clear();
            for (const auto& [key, item] : value.items())
                result[inText(key)] = in(item);
        }
        return result;
    }

    bool isUsed() const { return m_isUsed; }

private:
    std::string inText(std::string text) {
        for (auto at = text.find(m_placeholder); at != std::string::npos;
             at = text.find(m_placeholder, at + m_text.size())) {
            text.replace(at, m_placeholder.size(), m_text);
            m_isUsed = true;
        }
        return text;
    }

    std::string m_placeholder;
    Json m_value;
    std::string m_text;
    bool m_isUsed = false;
};

} // namespace

std::vector<Json> expanded(const Json& value) {
    if (!value.is_object() || !value.contains(kEachKey))
        return {value};
    Json pattern = value;
    pattern.erase(kEachKey);
    const Json& rows = value[kEachKey];
    if (!rows.is_array() || rows.empty())
        throw InputError("expected a list of rows in \"each\"");
    std::vector<Json> copies;
    for (const Json& row : rows) {
        Json copy = pattern;
        for (const auto& [key, replaced] : row.items()) {
            Replacement replacement(key, replaced);
            copy = replacement.in(copy);
            if (!replacement.isUsed())
                throw InputError("nothing uses \"{" + key + "}\"");
        }
        copies.push_back(std::move(copy));
    }
    return copies;
}

} // namespace firecheck
