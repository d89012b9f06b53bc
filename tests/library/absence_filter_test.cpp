#include "elements/NUXElementObject.h"
#include "evaluators/without/NUXWithoutElementTypeRule.h"
#include "rule_map_outline.h"

#include <gtest/gtest.h>

using firestandard::RuleMap;

namespace {

/// Rules of the types given, one letter each, named after their place: "wsw" makes W0 S1 W2.
std::vector<NuxStandardCheckRule> rulesOf(const std::string& types) {
    std::vector<NuxStandardCheckRule> rules;
    for (std::size_t i = 0; i < types.size(); ++i) {
        NuxStandardCheckRule rule;
        rule.type = types[i] == 'w' ? "without" : types[i] == 'W' ? "Without" : "self";
        rule.name = QString(QChar(types[i])) + QString::number(i);
        rules.push_back(rule);
    }
    return rules;
}

} // namespace

TEST(AbsenceFilter, RemovesTheAbsenceRulesOfTheElementsType) {
    NUXElementObject element(L"A");
    NUXWithoutElementTypeRule evaluator;
    for (const auto& [types, kept] :
         {std::pair("wsws", "A: s1 s3; "), std::pair("ww", ""), std::pair("ss", "A: s0 s1; "),
          std::pair("wW", "A: W1; "), std::pair("", "")}) {
        RuleMap rules{{"A", rulesOf(types)}, {"B", rulesOf("w")}};
        EXPECT_TRUE(evaluator.removeWithoutRules(&element, nullptr, rules));
        EXPECT_EQ(outline(rules), kept + std::string("B: w0")) << types;
    }
    RuleMap without{{"B", rulesOf("w")}};
    EXPECT_TRUE(evaluator.removeWithoutRules(&element, nullptr, without));
    EXPECT_EQ(outline(without), "B: w0");
}
