#include "rules/vocabulary_report.h"

namespace firecheck {

namespace {

std::string joined(const std::vector<std::string>& parts, const std::string& quote = {}) {
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : ", ") + quote + part + quote;
    return text;
}

/// What a rule is about: its element type and, if there is one, the type it is judged against.
std::string subject(const RuleName& rule, const std::string& quote = {}) {
    const std::string first = quote + rule.elementType + quote;
    return rule.referenceElementType.empty() ? first
                                             : first + " to " + quote + rule.referenceElementType + quote;
}

std::string attributeText(const RuleName& rule) {
    return rule.reads.empty() ? "Type" : "Type, " + joined(rule.reads);
}

std::string line(const std::string& title, const std::string& content) {
    return content.empty() ? content : "  " + title + ": " + content + "\n";
}

std::string cell(const std::string& content) {
    return " " + content + " |";
}

const char* const kOtherDistances =
    "A distance rule may have any other name, as long as its reference is no open shed. These distances are\n"
    "measured; other pairs that start from one of these types are passed over, and whatever starts from any\n"
    "other type counts as 0 m from everything.\n";

} // namespace

std::string ruleNameText(const RuleName& rule) {
    return rule.name + " (" + rule.type + ")\n" + line("judges", rule.judges) + line("about", subject(rule)) +
           line("reads", attributeText(rule)) + line("fixed limit", rule.limits) +
           line("note", rule.peculiarity);
}

std::string vocabularyText() {
    std::string text;
    for (const RuleName& rule : ruleNames())
        text += ruleNameText(rule);
    text += "\n" + std::string(kOtherDistances);
    for (const DistanceMeasure& measure : distanceMeasures())
        text += measure.elementType + "\n" + line("to", joined(measure.referenceElementTypes)) +
                line("note", measure.note);
    return text;
}

Json ruleNameJson(const RuleName& rule) {
    return {{"name", rule.name},
            {"type", rule.type},
            {"elementType", rule.elementType},
            {"referenceElementType", rule.referenceElementType},
            {"reads", rule.reads},
            {"judges", rule.judges},
            {"limits", rule.limits},
            {"peculiarity", rule.peculiarity}};
}

Json vocabularyJson() {
    Json rules = Json::array();
    for (const RuleName& rule : ruleNames())
        rules.push_back(ruleNameJson(rule));
    Json measures = Json::array();
    for (const DistanceMeasure& measure : distanceMeasures())
        measures.push_back({{"elementType", measure.elementType},
                            {"referenceElementTypes", measure.referenceElementTypes},
                            {"note", measure.note}});
    return {{"rules", std::move(rules)}, {"distances", std::move(measures)}};
}

std::string vocabularyMarkdown() {
    std::string text = "# Rule names\n\n`firecheck list-rules --format markdown` writes this page; "
                       "[rule-file.md](rule-file.md) says how the names are used.\n";
    for (const std::string& type : ruleTypes()) {
        text += "\n## " + type + "\n\n| Name | Judges | Fixed limit | Note |\n|---|---|---|---|\n";
        for (const RuleName& rule : ruleNames())
            if (rule.type == type)
                text += "|" + cell("`" + rule.name + "`<br>" + subject(rule, "`")) + cell(rule.judges) +
                        cell(rule.limits) + cell(rule.peculiarity) + "\n";
    }
    text += "\n## Distances\n\n" + std::string(kOtherDistances) + "\n| From | To | Note |\n|---|---|---|\n";
    for (const DistanceMeasure& measure : distanceMeasures())
        text += "|" + cell("`" + measure.elementType + "`") +
                cell(joined(measure.referenceElementTypes, "`")) + cell(measure.note) + "\n";
    return text;
}

} // namespace firecheck
