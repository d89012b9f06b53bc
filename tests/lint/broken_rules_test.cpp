#include "lint/RuleFileNode.h"
#include "lint_text.h"

#include <gtest/gtest.h>

#include <set>

using namespace firecheck;

// Breaks the names and values of the shipped rule file, one at a time.

namespace {

const std::string kFileName = SOURCE_DIRECTORY "/data/FireStandardCheck.xml";

std::vector<RuleFileNode> shippedRules() {
    std::vector<RuleFileNode> rules;
    for (const RuleFileNode& group : readRuleFileNodes(kFileName).root.children)
        for (const RuleFileNode& rule : group.children)
            if (rule.kind == RuleFileNode::Kind::Element)
                rules.push_back(rule);
    EXPECT_GE(rules.size(), 57u);
    return rules;
}

/// The rule as XML, with its texts left out.
std::string written(const RuleFileNode& rule) {
    std::string text = "<" + rule.name;
    for (const RuleFileAttribute& attribute : rule.attributes)
        text += " " + attribute.name + "=\"" + attribute.value + "\"";
    text += ">";
    for (const RuleFileNode& child : rule.children)
        text += "<" + child.name + ">x</" + child.name + ">";
    return text + "</" + rule.name + ">";
}

bool isFound(const RuleFileNode& rule) {
    return !lintText("<R><G>" + written(rule) + "</G></R>").empty();
}

/// A letter dropped at the start, in the middle and at the end, and the case changed of one letter and of
/// all.
std::set<std::string> broken(const std::string& text) {
    std::set<std::string> variants;
    if (!text.empty())
        for (const std::size_t place : {std::size_t(0), text.size() / 2, text.size() - 1})
            variants.insert(std::string(text).erase(place, 1));
    std::string swapped = text;
    for (char& letter : swapped)
        letter = static_cast<char>(std::isupper(letter) ? std::tolower(letter) : std::toupper(letter));
    variants.insert(swapped);
    variants.insert(swapped.substr(0, 1) + text.substr(text.empty() ? 0 : 1));
    variants.erase(text);
    return variants;
}

/// Any name does where the evaluator does not ask for it.
bool nameMatters(const RuleFileNode& rule) {
    return rule.value("Type") != "distant" ||
           (rule.value("ReferenceElementType") == "NUX_ELEMENT_TYPE_OPENHOUSE" &&
            rule.value("ElementType") != "NUX_EDO_TYPE_FIREEXTINGUISHERBOX");
}

/// Another number is another requirement and no mistake; none at all, or none that a distance can miss, is.
bool valueMatters(const RuleFileAttribute& attribute) {
    if (attribute.name == "DistantValue")
        return attribute.value.empty() || attribute.value == "0";
    return attribute.name != "Standard" && attribute.name != "PropertyType";
}

TEST(ShippedRuleFile, IsClean) {
    for (const LintFinding& finding : lintRuleFile(kFileName))
        ADD_FAILURE() << finding.place.line << ":" << finding.place.column << " " << finding.message;
}

TEST(ShippedRuleFile, BrokenNamesAndValuesAreFoundWhereTheyMatter) {
    for (const RuleFileNode& rule : shippedRules()) {
        EXPECT_FALSE(isFound(rule)) << written(rule);
        RuleFileNode changed = rule;
        const auto expectWhenBroken = [&](std::string& part, const auto& matters) {
            const std::string whole = part;
            for (const std::string& variant : broken(whole)) {
                part = variant;
                EXPECT_EQ(isFound(changed), matters()) << written(changed);
            }
            part = whole;
        };
        expectWhenBroken(changed.name, [&] { return nameMatters(rule); });
        for (RuleFileNode& child : changed.children)
            expectWhenBroken(child.name, [] { return true; });
        for (RuleFileAttribute& attribute : changed.attributes) {
            expectWhenBroken(attribute.name, [] { return true; });
            expectWhenBroken(attribute.value, [&] { return valueMatters(attribute); });
        }
    }
}

} // namespace
