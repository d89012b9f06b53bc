#include "rules_page/case_rows.h"

#include "rules_page/markdown.h"

#include <algorithm>
#include <set>

namespace firecheck {

namespace {

using Cases = std::vector<const Case*>;

std::string foundText(const Case& judged) {
    std::string text;
    for (const ExpectedViolation& violation : judged.violations) {
        text += text.empty() ? "" : "; ";
        text += violation.element != 0 ? "#" + std::to_string(violation.element) : "the site";
        for (std::size_t i = 0; i < violation.related.size(); ++i)
            text += (i == 0 ? " with #" : ", #") + std::to_string(violation.related[i]);
    }
    if (text.empty())
        text = "nothing";
    return judged.outcome.empty() ? text : text + "<br>reported as “" + judged.outcome + "”";
}

std::string ruleName(const CaseFile& file, const Case& judged) {
    return file.rules[judged.explained].record.name.toStdString();
}

bool startsWith(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

/// The sentence before placeholders were replaced, without the rule's name, which has a column of its own.
std::string situationPattern(const CaseFile& file, const Cases& cases) {
    const std::string& pattern = cases.front()->pattern;
    const bool saysRule = std::all_of(cases.begin(), cases.end(), [&](const Case* one) {
        return startsWith(one->sentence, ruleName(file, *one) + ": ");
    });
    return saysRule ? pattern.substr(pattern.find(": ") + 2) : pattern;
}

std::string valueText(const Json& value) {
    const std::string text = value.is_string() ? value.get<std::string>() : value.dump();
    const bool isPlain = !text.empty() && text.find_first_of(",;") == std::string::npos &&
                         text.front() != ' ' && text.back() != ' ';
    return isPlain ? text : "\"" + text + "\"";
}

/// The words of a sentence that differ from case to case.
class Variants {
public:
    Variants(const Cases& cases, const std::string& pattern) : m_cases(cases) {
        for (const auto& [key, value] : cases.front()->replaced.items())
            if (pattern.find("{" + key + "}") != std::string::npos)
                (isSameInAll(key, value) ? m_same : m_different).push_back(key);
    }

    std::string in(std::string pattern) const {
        const Json& first = m_cases.front()->replaced;
        for (const std::string& key : m_same)
            pattern = replacedAll(pattern, "{" + key + "}",
                                  first.at(key).is_string() ? first.at(key).get<std::string>()
                                                            : first.at(key).dump());
        pattern = markdownText(pattern);
        for (const std::string& key : m_different)
            pattern = replacedAll(pattern, "{" + key + "}", "*" + key + "*");
        return m_different.empty() ? pattern : pattern + "<br>" + list();
    }

private:
    bool isSameInAll(const std::string& key, const Json& value) const {
        return std::all_of(m_cases.begin(), m_cases.end(),
                           [&](const Case* one) { return one->replaced.at(key) == value; });
    }

    std::string list() const {
        std::string keys;
        for (const std::string& key : m_different)
            keys += (keys.empty() ? "*" : ", *") + key + "*";
        std::string text;
        std::set<std::string> listed;
        for (const Case* one : m_cases) {
            std::string values;
            for (const std::string& key : m_different)
                values += (values.empty() ? "" : ", ") + valueText(one->replaced.at(key));
            if (listed.insert(values).second)
                text += (text.empty() ? "" : "; ") + values;
        }
        return keys + ": " + markdownText(text);
    }

    const Cases& m_cases;
    std::vector<std::string> m_same;
    std::vector<std::string> m_different;
};

CaseRow rowOf(const CaseFile& file, const Cases& cases) {
    CaseRow row;
    const std::string pattern = situationPattern(file, cases);
    row.situation = Variants(cases, pattern).in(pattern);
    row.found = foundText(*cases.front());
    for (const Case* one : cases) {
        const std::string name = ruleName(file, *one);
        if (std::find(row.ruleNames.begin(), row.ruleNames.end(), name) == row.ruleNames.end())
            row.ruleNames.push_back(name);
    }
    return row;
}

} // namespace

std::vector<CaseRow> caseRows(const CaseFile& file, std::size_t firstRule, std::size_t endRule) {
    std::vector<Cases> alike;
    for (const Case& one : file.cases) {
        if (one.explained < firstRule || one.explained >= endRule)
            continue;
        const auto same = std::find_if(alike.begin(), alike.end(), [&](const Cases& known) {
            return known.front()->pattern == one.pattern && foundText(*known.front()) == foundText(one);
        });
        if (same == alike.end())
            alike.push_back({&one});
        else
            same->push_back(&one);
    }
    std::vector<CaseRow> rows;
    for (const Cases& cases : alike)
        rows.push_back(rowOf(file, cases));
    return rows;
}

} // namespace firecheck
