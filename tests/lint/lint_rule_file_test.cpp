#include "InputError.h"
#include "lint_text.h"

#include <gtest/gtest.h>

using namespace firecheck;

namespace {

using Expected = std::vector<std::string>;

/// Each finding as "line:column code" and, if there is one, "> suggestion".
Expected findingsOn(const std::string& text) {
    Expected list;
    for (const LintFinding& finding : lintText(text)) {
        list.push_back(std::to_string(finding.place.line) + ":" + std::to_string(finding.place.column) + " " +
                       finding.code);
        if (!finding.suggestion.empty())
            list.back() += " > " + finding.suggestion;
    }
    return list;
}

struct Row {
    std::string text;
    Expected findings;
};

/// The texts of the rows stand in a group, from the second line on.
void expectFindingsInGroup(const std::vector<Row>& rows) {
    for (const Row& row : rows)
        EXPECT_EQ(findingsOn("<Rules><Group>\n" + row.text + "\n</Group></Rules>"), row.findings) << row.text;
}

std::string distant(const std::string& first, const std::string& reference, const std::string& value,
                    const std::string& condition = "less", const std::string& name = "Distant_Any") {
    return "<" + name + " Type=\"distant\"\nElementType=\"NUX_" + first + "\"\nReferenceElementType=\"NUX_" +
           reference + "\"\nConstraintCondition=\"" + condition + "\"\nDistantValue=\"" + value + "\"/>";
}

std::string saying(const std::string& rule, const std::string& description) {
    return rule.substr(0, rule.size() - 2) + "><RuleDescription>" + description + "</RuleDescription></Any>";
}

TEST(LintRuleFile, TextsAndLimits) {
    const std::string seven = distant("ELEMENT_TYPE_PREFABHOUSE", "EDO_TYPE_WOODYARD", "7", "less", "Any");
    const std::string ranged =
        distant("ELEMENT_TYPE_PREFABHOUSE", "EDO_TYPE_WOODYARD", "3:7.5", "less or more", "Any");
    expectFindingsInGroup({
        {saying(seven, "Less than 7 m, of 12 m"), {}},
        {saying(seven, "Less than 9 m apart"), {"6:18 other-limit"}},
        {saying(seven, "少于9米的"), {"6:18 other-limit"}},
        {saying(seven, "9 mm, 9 m², 2.7 mio, GB 50720-2011, 3.2.1"), {}},
        {saying(ranged, "At most 7.50 m"), {}},
        {R"(<Self_RoadMinWidth Type="self"><RuleDetailDescription>6 m</RuleDetailDescription></Self_RoadMinWidth>)",
         {"2:32 other-limit"}},
        {R"(<Self_PrefabHouseRoomArea Type="self"><RuleDescription>90 m²</RuleDescription></Self_PrefabHouseRoomArea>)",
         {"2:39 other-limit"}},
        {distant("ELEMENT_TYPE_PREFABHOUSE", "EDO_TYPE_WOODYARD", "7000"), {"6:1 doubtful-distance"}},
        {distant("ELEMENT_TYPE_PREFABHOUSE", "EDO_TYPE_WOODYARD", "1e308"), {"6:1 doubtful-distance"}},
        {distant("ELEMENT_TYPE_PREFABHOUSE", "EDO_TYPE_WOODYARD", "nan"), {"6:1 bad-distance"}},
        {R"(<Self_RoadLoop Type="self" Standard=")" + std::string("\xBB\xF0\"/>"), {"2:38 wrong-bytes"}},
    });
}

TEST(LintRuleFile, TypesAndNames) {
    expectFindingsInGroup({
        {R"(<Self_RoadLoop Type="self"/>)", {}},
        {R"(<Self_RoadLoop Type="Self"/>)", {"2:16 unknown-type > self"}},
        {R"(<Roads Type=""/>)", {"2:8 unknown-type"}},
        {"\U0001F525\n\U0001F525<Roads Type=''/>", {"2:1 empty-record", "3:9 unknown-type"}},
        {R"(<Self_RoadLoop/>)", {"2:1 unknown-type > self"}},
        {R"(<Self_RoadLoop type="self"/>)", {"2:1 unknown-type > self", "2:16 unread-attribute > Type"}},
        {R"(<Self_Roadloop Type="self"/>)", {"2:1 unknown-name > Self_RoadLoop"}},
        {R"(<Self_RoadLoop Type="position"/>)", {"2:1 unknown-name"}},
        {R"(<Position_WireToElectricalMechanicalFactory Type="position"/>)",
         {"2:1 unknown-name > Position_WireToEletricalMechanicalFactory"}},
        // Roads in a rule that looks for them by class may be called anything.
        {R"(<Self_RoadMinWidth Type="self" ElementType="NUX_ELEMENT_TYPE_ROAD"/>)", {}},
        {R"(<Self_RoadMinWidth Type="self" ElementType="NUX_EDO_TYPE_ROAd"/>)",
         {"2:32 unknown-element-type > NUX_EDO_TYPE_ROAD"}},
        {R"(<Self_RoadMinWidth Type="self" DistantValue="6"/>)", {"2:32 ineffective-attribute"}},
    });
}

TEST(LintRuleFile, AbsenceAndBoxRules) {
    expectFindingsInGroup({
        {R"(<Without_Canteen Type="without" ElementType="NUX_ELEMENT_TYPE_CLOSEHOUSE" PropertyType="x"/>)",
         {}},
        {R"(<Without_Canteen Type="without" ElementType="NUX_ELEMENT_TYPE_CLOSEHOUSE"/>)",
         {"2:1 ineffective-name"}},
        {R"(<Without_Crane Type="without" ElementType="NUX_EDO_TYPE_TOWERCRANE"/>)", {}},
        {R"(<Without_Crane Type="without" ElementType="NUX_EDO_TYPE_TOWERCRANE" PropertyType="x"/>)",
         {"2:1 unknown-name"}},
        {R"(<Without_Canteen Type="without" ElementType="NUX_ELEMENT_TYPE_OPENHOUSE" PropertyType="x"/>)",
         {"2:33 other-element-type > NUX_ELEMENT_TYPE_CLOSEHOUSE"}},
        {R"(<Without_FireRoad Type="without" ElementType="NUX_ELEMENT_TYPE_ROAD" PropertyType="x"/>)",
         {"2:34 unreported-element-type > NUX_EDO_TYPE_ROAD"}},
        {R"(<Without_FireRoad Type="without" PropertyType="x"/>)",
         {"2:1 missing-attribute > NUX_EDO_TYPE_ROAD"}},
        {R"(<Position_FireExtinguisherBoxToWoodYard Type="position" ElementType="NUX_EDO_TYPE_TEMPLATEYARD"/>)",
         {"2:57 other-element-type > NUX_EDO_TYPE_WOODYARD"}},
        {R"(<Position_FireExtinguisherBoxToWoodYard Type="position"/>)",
         {"2:1 missing-attribute > NUX_EDO_TYPE_WOODYARD"}},
    });
}

TEST(LintRuleFile, DistanceRules) {
    const std::string house = "ELEMENT_TYPE_PREFABHOUSE";
    const std::string future = "ELEMENT_TYPE_FUTUREHOUSE";
    const std::string shed = "ELEMENT_TYPE_OPENHOUSE";
    const std::string box = "EDO_TYPE_FIREEXTINGUISHERBOX";
    const std::string road = "EDO_TYPE_ROAD";
    for (const char* value : {"6m", "nan", "-1", "6:10"})
        expectFindingsInGroup({{distant(house, future, value), {"6:1 bad-distance"}}});
    for (const char* value : {"6:", "6:10:12", "10:6"})
        expectFindingsInGroup({{distant(house, future, value, "less or more"), {"6:1 bad-distance"}}});
    expectFindingsInGroup({
        {distant(house, future, "6"), {}},
        {distant(house, future, "6:10", "less or more"), {}},
        {distant(house, future, "0:10", "less or more"), {}},
        {distant(house, future, "6", "Less"), {"5:1 unknown-condition > less"}},
        {distant(house, future, "6", "more"), {"5:1 unknown-condition"}},
        {distant(house, future, "0"), {"6:1 never-finds"}},
        {distant(future, house, "6"),
         {"4:1 never-finds > NUX_ELEMENT_TYPE_PREFABHOUSE to NUX_ELEMENT_TYPE_FUTUREHOUSE"}},
        {distant(road, shed, "6"), {"4:1 never-finds"}},
        {distant("ELEMENT_TYPE_ROAD", future, "6"), {"3:1 unreported-element-type > NUX_EDO_TYPE_ROAD"}},
        {distant(house, "ELEMENT_TYPE_ROAD", "6"), {"4:1 unreported-element-type > NUX_EDO_TYPE_ROAD"}},
        {distant(house, "ELEMENT_TYPE_FUTUREHUOSE", "6"),
         {"4:1 unknown-element-type > NUX_ELEMENT_TYPE_FUTUREHOUSE"}},
        {distant(house, shed, "6", "less", "Distant_PrefabHouseToWoodFactory"), {}},
        {distant(future, shed, "6", "less", "Distant_FutureHouseToWoodFactory"),
         {"2:1 unknown-name > Distant_FutureouseToWoodFactory"}},
        {distant(future, shed, "6", "less", "Distant_PrefabHouseToWoodFactory"),
         {"3:1 other-element-type > NUX_ELEMENT_TYPE_PREFABHOUSE"}},
        {distant(house, future, "6", "less", "Distant_PrefabHouseToWoodFactory"),
         {"4:1 other-element-type > NUX_ELEMENT_TYPE_OPENHOUSE"}},
        // What is not measured counts as 0 m away, so a minimum of 0 is the one that says nothing untrue.
        {distant(box, shed, "0"), {}},
        {distant(box, shed, "3"), {"6:1 always-finds"}},
        {distant("ELEMENT_TYPE_CLOSEHOUSE", future, "3"), {"6:1 always-finds"}},
        {R"(<Distant_Any Type="distant" ElementType="NUX_EDO_TYPE_ROAD"/>)",
         {"2:1 missing-attribute", "2:1 unknown-condition", "2:1 bad-distance"}},
    });
}

TEST(LintRuleFile, WhatIsNeverReadAndWhatBecomesAnEmptyRule) {
    expectFindingsInGroup({
        {"<Self_RoadLoop Type=\"self\"><!-- why -->\n "
         "<RuleDescription>a<b>c</b></RuleDescription></Self_RoadLoop>",
         {}},
        {"<Self_RoadLoop Type=\"self\">loose <Objname>x</Objname>\n<ObjName lang=\"en\"/>  "
         "<ObjName/></Self_RoadLoop>",
         {"2:28 unread-text", "2:34 unread-element > ObjName", "3:10 unread-attribute",
          "3:23 unread-element"}},
        {"<Self_RoadLoop Type=\"self\"/><!-- a --> 食堂 <Self_RoadMinWidth\n\n\tType=\"self\"\n  Colour = "
         "'red>' />",
         {"2:29 empty-record", "2:40 empty-record", "5:3 unread-attribute"}},
        {"<![CDATA[x]]><?php ?>", {"2:1 empty-record", "2:14 empty-record"}},
        {"<Self_RoadLoop Type=\"self\"/>\n<A Type=\"without\" ElementType=\"NUX_EDO_TYPE_WALL\"/>\n"
         "<Self_RoadLoop Type=\"self\"/>\n<B Type=\"without\" ElementType=\"NUX_EDO_TYPE_WALL\"/>",
         {"4:1 colliding-key", "5:1 colliding-key"}},
    });
    const std::vector<Row> files = {
        {"<R xmlns:x=\"y\" Type=\"self\">stray<!-- fine --><G Comment=\"\"><Self_RoadLoop "
         "Type=\"self\"/></G></R>",
         {"1:16 unread-attribute", "1:28 unread-text", "1:49 unread-attribute"}},
        {"<R>\r\n<Self_RoadLoop Type='self'>\r\n<ObjName/></Self_RoadLoop></R>", {"2:1 rule-outside-group"}},
        {"<?xml version='1.0' encoding='ISO-8859-1'?><R>\r<G>\xe4\xf6</G></R>", {"2:4 empty-record"}},
    };
    for (const Row& row : files)
        EXPECT_EQ(findingsOn(row.text), row.findings) << row.text;
}

TEST(LintRuleFile, RefusesWhatIsNoRuleFile) {
    for (const char* text :
         {"", "<R>", "<R><G></R>", "<R><!-- none --><G/></R>", "<R><G a='1' a='2'/></R>", "{}"})
        EXPECT_THROW(lintText(text), InputError) << text;
    EXPECT_THROW(lintRuleFile("gone.xml"), InputError);
}

} // namespace
