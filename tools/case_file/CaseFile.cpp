#include "case_file/CaseFile.h"

#include "InputError.h"
#include "case_file/placeholders.h"
#include "explain/rule_text_fields.h"
#include "json/Field.h"
#include "json/parse_json.h"
#include "site_file/site_reader.h"

#include <algorithm>
#include <set>

namespace firecheck {

namespace {

std::vector<KeyShape> keys(const std::vector<std::string>& required, const std::vector<std::string>& others) {
    std::vector<KeyShape> shapes;
    for (const std::string& key : required)
        shapes.push_back({key, "needed here", true, {}});
    for (const std::string& key : others)
        shapes.push_back({key, {}, false, {}});
    return shapes;
}

QString fieldText(const Json& value) {
    return QString::fromStdString(value.get<std::string>());
}

void setFields(NuxStandardCheckRule& record, const Json& fields) {
    for (const auto& [key, value] : fields.items()) {
        const std::string& name = key;
        const auto& known = firestandard::ruleTextFields();
        const auto field =
            std::find_if(known.begin(), known.end(), [&](const auto& each) { return each.name == name; });
        if (field == known.end())
            throw InputError("no field of a rule is named \"" + name + "\"");
        record.*(field->member) = fieldText(value);
    }
}

/// Every text that the file leaves open holds its own name, so that a lost or swapped one shows.
NuxStandardCheckRule ruleRecord(const Json& rule) {
    NuxStandardCheckRule record;
    for (const char* own : {"standard", "objName", "referenceObjName", "ruleDescription", "ruleCatalog",
                            "ruleDetailDescription"})
        setFields(record, {{own, own}});
    setFields(record, rule.at("fields"));
    record.name = fieldText(rule.at("name"));
    return record;
}

ExplainedRule explainedRule(const Json& rule, const std::string& pattern) {
    checkKeys(rule, {}, keys({"name", "meaning", "fields"}, {"limits", "peculiarities"}));
    return {ruleRecord(rule),
            pattern,
            rule.at("fields"),
            rule.at("meaning").get<std::string>(),
            rule.value("limits", std::string()),
            rule.value("peculiarities", std::vector<std::string>())};
}

/// The objects of a site, changed as a case says.
class ChangedSite {
public:
    explicit ChangedSite(const Json& objects) : m_objects(objects) {}

    void set(const Json& changes) {
        for (const auto& [handle, values] : changes.items()) {
            Json& object = *find(std::stoll(handle));
            for (const auto& [key, value] : values.items()) {
                if (value.is_null())
                    object.erase(key);
                else
                    object[key] = value;
            }
        }
    }

    void remove(const Json& handles) {
        for (const Json& handle : handles)
            m_objects.erase(find(handle.get<long long>()));
    }

    void add(const Json& objects) { m_objects.insert(m_objects.end(), objects.begin(), objects.end()); }

    void putLast(const Json& handle) {
        const auto place = find(handle.get<long long>());
        std::rotate(place, place + 1, m_objects.end());
    }

    Json site() const { return {{"objects", m_objects}}; }

private:
    Json::iterator find(long long handle) {
        const auto found = std::find_if(m_objects.begin(), m_objects.end(),
                                        [&](const Json& object) { return object.at("handle") == handle; });
        if (found == m_objects.end())
            throw InputError("no object has the handle " + std::to_string(handle));
        return found;
    }

    Json m_objects;
};

std::vector<ExpectedViolation> expectedViolations(const Json& value) {
    std::vector<ExpectedViolation> violations;
    for (const Json& violation : value) {
        checkKeys(violation, {}, keys({}, {"element", "related"}));
        violations.push_back(
            {violation.value("element", 0LL), violation.value("related", std::vector<long long>())});
    }
    return violations;
}

class CaseReader {
public:
    CaseReader(const Json& file, const std::vector<ExplainedRule>& rules)
        : m_objects(file.at("site")), m_dependsOnDirection(file.value("dependsOnDirection", false)),
          m_rules(rules) {}

    Case read(const Json& value) const {
        checkKeys(value, {},
                  keys({"case", "violations"},
                       {"rule", "fields", "set", "remove", "add", "last", "outcome", "dependsOnDirection"}));
        Case result;
        result.sentence = value.at("case").get<std::string>();
        try {
            result.explained = explainedBy(value);
            result.rule = m_rules[result.explained].record;
            setFields(result.rule, value.value("fields", Json::object()));
            result.site = site(value);
            readSite(result.site);
            result.violations = expectedViolations(value.at("violations"));
            result.outcome = value.value("outcome", std::string());
            result.dependsOnDirection = value.value("dependsOnDirection", m_dependsOnDirection);
        } catch (const std::exception& error) {
            throw InputError("\"" + result.sentence + "\": " + error.what());
        }
        return result;
    }

private:
    std::size_t explainedBy(const Json& value) const {
        const Json name = value.value("rule", Json());
        if (name.is_null() && m_rules.size() != 1)
            throw InputError("expected the key \"rule\"");
        const auto found = std::find_if(m_rules.begin(), m_rules.end(), [&](const ExplainedRule& known) {
            return name.is_null() || known.record.name == fieldText(name);
        });
        if (found == m_rules.end())
            throw InputError("no rule is named " + name.dump());
        return static_cast<std::size_t>(found - m_rules.begin());
    }

    Json site(const Json& value) const {
        ChangedSite site(m_objects);
        site.add(value.value("add", Json::array()));
        site.set(value.value("set", Json::object()));
        site.remove(value.value("remove", Json::array()));
        if (value.contains("last"))
            site.putLast(value.at("last"));
        return site.site();
    }

    const Json& m_objects;
    bool m_dependsOnDirection;
    const std::vector<ExplainedRule>& m_rules;
};

CaseFile caseFile(const Json& file) {
    checkKeys(file, {},
              keys({"title", "about", "reports", "rules", "site", "cases"}, {"dependsOnDirection"}));
    CaseFile result;
    result.title = file.at("title").get<std::string>();
    result.about = file.at("about").get<std::string>();
    result.reports = file.at("reports").get<std::string>();
    for (const Json& pattern : file.at("rules")) {
        for (const Json& rule : expanded(pattern))
            result.rules.push_back(explainedRule(rule, pattern.value("name", std::string())));
    }

    result.site = {{"objects", file.at("site")}};

    const CaseReader reader(file, result.rules);
    std::set<std::string> sentences;
    for (const Json& pattern : file.at("cases")) {
        const std::vector<Json> copies = expanded(pattern);
        for (std::size_t i = 0; i < copies.size(); ++i) {
            result.cases.push_back(reader.read(copies[i]));
            result.cases.back().pattern = pattern.at("case").get<std::string>();
            result.cases.back().replaced = copies.size() > 1 ? pattern.at("each").at(i) : Json::object();
            if (!sentences.insert(result.cases.back().sentence).second)
                throw InputError("\"" + result.cases.back().sentence + "\" is said twice");
        }
    }
    if (result.cases.empty())
        throw InputError("expected a case");
    return result;
}

} // namespace

CaseFile readCaseFile(const std::string& text, const std::string& name) {
    const Json file = parseJson(text, name);
    try {
        return caseFile(file);
    } catch (const std::exception& error) {
        throw InputError(name + ": " + error.what());
    }
}

} // namespace firecheck
