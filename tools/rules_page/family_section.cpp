#include "rules_page/family_section.h"

#include "rules_page/case_rows.h"
#include "rules_page/markdown.h"

#include <algorithm>

namespace firecheck {

namespace {

/// What the names have in common, at their start and at their end.
std::string commonName(const std::vector<std::string>& names) {
    const std::string& first = names.front();
    std::size_t start = first.size();
    std::size_t end = first.size();
    for (const std::string& name : names) {
        const auto differing = std::mismatch(first.begin(), first.end(), name.begin(), name.end()).first;
        start = std::min(start, static_cast<std::size_t>(differing - first.begin()));
        const auto fromEnd = std::mismatch(first.rbegin(), first.rend(), name.rbegin(), name.rend()).first;
        end = std::min(end, static_cast<std::size_t>(fromEnd - first.rbegin()));
    }
    return start == first.size() ? first : first.substr(0, start) + "…" + first.substr(first.size() - end);
}

/// Rules that a case file explains in one entry, and their cases.
class RuleSection {
public:
    RuleSection(const CaseFile& file, std::size_t first, std::size_t end)
        : m_file(file), m_first(first), m_end(end) {
        for (std::size_t i = first; i < end; ++i)
            m_names.push_back(file.rules[i].record.name.toStdString());
    }

    std::string text() const {
        const bool isOne = m_names.size() == 1;
        std::string text = "\n### " + codeText(commonName(m_names)) + "\n\n";
        text += isOne ? markdownText(first().meaning) + "\n" : namesTable();
        text += limits() + fields() + peculiarities();
        return text + "\n" + casesTable();
    }

private:
    const ExplainedRule& first() const { return m_file.rules[m_first]; }

    template <class Text> bool isSameInAll(Text text) const {
        for (std::size_t i = m_first; i < m_end; ++i)
            if (text(m_file.rules[i]) != text(first()))
                return false;
        return true;
    }

    static Json fieldOf(const ExplainedRule& rule, const std::string& field) {
        return rule.fields.value(field, Json());
    }

    /// The fields that are the same in all rules, or those that are not.
    std::vector<std::string> fieldNames(bool areSame) const {
        std::vector<std::string> names;
        for (const auto& [key, value] : first().fields.items()) {
            const std::string& field = key;
            if (isSameInAll([&](const ExplainedRule& rule) { return fieldOf(rule, field); }) == areSame)
                names.push_back(field);
        }
        return names;
    }

    std::string namesTable() const {
        const std::vector<std::string> differing = fieldNames(false);
        const bool hasMeaning = !isSameInAll([](const ExplainedRule& rule) { return rule.meaning; });
        std::vector<std::string> titles{"Rule"};
        if (hasMeaning)
            titles.emplace_back("Meaning");
        for (const std::string& field : differing)
            titles.push_back(codeText(field));
        std::string text = hasMeaning ? std::string() : markdownText(first().meaning) + "\n\n";
        if (titles.size() == 1)
            return text + namesList();
        text += tableHead(titles);
        for (std::size_t i = m_first; i < m_end; ++i) {
            const ExplainedRule& rule = m_file.rules[i];
            std::vector<std::string> cells{codeText(rule.record.name.toStdString())};
            if (hasMeaning)
                cells.push_back(markdownText(rule.meaning));
            for (const std::string& field : differing)
                cells.push_back(fieldText(rule, field));
            text += tableLine(cells);
        }
        return text;
    }

    std::string namesList() const {
        std::string text;
        for (const std::string& name : m_names)
            text += "- " + codeText(name) + "\n";
        return text;
    }

    static std::string fieldText(const ExplainedRule& rule, const std::string& field) {
        const std::string value = rule.fields.value(field, std::string());
        return value.empty() ? "empty" : codeText(value);
    }

    std::string limits() const {
        std::vector<std::string> texts;
        for (std::size_t i = m_first; i < m_end; ++i)
            appendNew(m_file.rules[i].limits, texts);
        std::string text;
        for (const std::string& limit : texts)
            text += "\n**Limits:** " + markdownText(limit) + "\n";
        return text;
    }

    std::string fields() const {
        std::string text;
        for (const std::string& field : fieldNames(true))
            text += (text.empty() ? "" : ", ") + codeText(field) + " " + fieldText(first(), field);
        return "\n**Fields:** " + text + ".\n";
    }

    std::string peculiarities() const {
        std::vector<std::string> texts;
        for (std::size_t i = m_first; i < m_end; ++i)
            for (const std::string& peculiarity : m_file.rules[i].peculiarities)
                appendNew(peculiarity, texts);
        std::string text = texts.empty() ? "" : "\n**Peculiarities**\n\n";
        for (const std::string& peculiarity : texts)
            text += "- " + markdownText(peculiarity) + "\n";
        return text;
    }

    static void appendNew(const std::string& text, std::vector<std::string>& texts) {
        if (!text.empty() && std::find(texts.begin(), texts.end(), text) == texts.end())
            texts.push_back(text);
    }

    std::string casesTable() const {
        const bool isOne = m_names.size() == 1;
        std::string text = tableHead(isOne ? std::vector<std::string>{"Situation", "Found"}
                                           : std::vector<std::string>{"Situation", "Rule", "Found"});
        for (const CaseRow& row : caseRows(m_file, m_first, m_end))
            text += isOne ? tableLine({row.situation, row.found})
                          : tableLine({row.situation, ruleText(row), row.found});
        return text;
    }

    std::string ruleText(const CaseRow& row) const {
        if (row.ruleNames == m_names)
            return "each";
        std::string text;
        for (const std::string& name : row.ruleNames)
            text += (text.empty() ? "" : "<br>") + codeText(name);
        return text;
    }

    const CaseFile& m_file;
    const std::size_t m_first;
    const std::size_t m_end;
    std::vector<std::string> m_names;
};

std::string objectList(const CaseFile& file) {
    std::string text = "\n```json\n";
    for (const Json& object : file.site.at("objects"))
        text += object.dump() + "\n";
    return text + "```\n";
}

} // namespace

std::string familySection(const CaseFile& file, const std::string& plans) {
    std::string text = "\n## " + markdownText(file.title) + "\n\n" + markdownText(file.about) +
                       "\n\n**Reported:** " + markdownText(file.reports) + "\n\n" + plans + objectList(file);
    for (std::size_t first = 0; first < file.rules.size();) {
        std::size_t end = first + 1;
        while (end < file.rules.size() && file.rules[end].pattern == file.rules[first].pattern)
            ++end;
        text += RuleSection(file, first, end).text();
        first = end;
    }
    return text;
}

} // namespace firecheck
