#include "elements/NUXElementObject.h"
#include "evaluators/without/NUXWithoutElementTypeRule.h"

#include <gtest/gtest.h>

namespace {

using RuleMap = QMap<QString, std::vector<NuxStandardCheckRule>>;

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

std::string names(const std::vector<NuxStandardCheckRule>& rules) {
    std::string result;
    for (const NuxStandardCheckRule& rule : rules)
        result += rule.name.toStdString();
    return result;
}

} // namespace

TEST(AbsenceFilter, RemovesTheAbsenceRulesOfTheElementsType) {
    struct Row {
        const char* types;
        const char* kept; ///< null: the entry goes
    };
    const Row rows[] = {{"wsws", "s1s3"}, {"ww", nullptr}, {"ss", "s0s1"}, {"wW", "W1"}, {"", nullptr}};
    NUXElementObject element(L"A");
    NUXWithoutElementTypeRule evaluator;
    for (const Row& row : rows) {
        RuleMap rules{{"A", rulesOf(row.types)}, {"B", rulesOf("w")}};
        EXPECT_TRUE(evaluator.removeWithoutRules(&element, nullptr, rules));
        EXPECT_EQ(rules.contains("A"), row.kept != nullptr) << row.types;
        EXPECT_EQ(names(rules.value("A")), row.kept ? row.kept : "");
        EXPECT_EQ(names(rules.value("B")), "w0");
    }
    RuleMap without{{"B", rulesOf("w")}};
    EXPECT_TRUE(evaluator.removeWithoutRules(&element, nullptr, without));
    EXPECT_EQ(without.size(), 1);
}
