#include "RuleFileInPlace.h"
#include "rule_map_outline.h"
#include "rules_config/NUXRuleConfigFile.h"

#include <gtest/gtest.h>

using firestandard::RuleMap;

namespace {

RuleMap rulesOf(const QByteArray& text) {
    return RuleFileInPlace().rulesOf(text);
}

} // namespace

TEST(RuleStore, FilesEveryNodeOfEveryGroup) {
    struct Row {
        const char* what;
        QByteArray text;
        const char* rules;
    };
    const Row rows[] = {
        {"other names of root and groups", "<a><b><R/></b><c><Q/></c></a>", "Q: Q; R: R"},
        {"one name in two groups, in order", "<a><b><R Type='1'/></b><c><R Type='2'/></c></a>", "R: R R"},
        {"white space between rules is no rule", "<a>\n <b>\n  <R/>\n </b>\n</a>", "R: R"},
        {"comment, text, data section and instruction in a group are rules",
         "<a><b><!-- c --><R/>text<![CDATA[d]]><?pi x?></b></a>",
         "#cdata-section: #cdata-section; #comment: #comment; #text: #text; R: R; pi: pi"},
        {"what is no element beside the groups is nothing", "<a><!-- c -->text<b><R/></b></a>", "R: R"},
        {"a rule below the root is a group", "<a><R Type='self'><ObjName/></R></a>", "ObjName: ObjName"},
        {"absence rules by element and property type",
         "<a><b><W Type='without' ElementType='AB' PropertyType='C'/><V Type='without' ElementType='A' "
         "PropertyType='BC'/></b></a>",
         "ABC: W V"},
        {"another letter case is another type", "<a><b><W Type='Without' ElementType='AB'/></b></a>", "W: W"},
        {"no element at all", "<a/>", ""},
        {"not a document", "nonsense", ""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(outline(rulesOf(row.text)), row.rules) << row.what;
}

TEST(RuleStore, ReadsARuleAsItStands) {
    const RuleMap rules =
        rulesOf("<a><b><R ElementType=' E ' Type='self' PropertyType='P' Standard='S &amp; T' "
                "ReferenceElementType='F' "
                "ConstraintCondition='less or more' DistantValue='6:10' type='x' Other='y'>"
                "<RuleDescription>one <b>two<i> "
                "three</i></b></RuleDescription><RuleDescription>second</RuleDescription>"
                "<ruledescription>no</ruledescription><RuleCatalog> c </RuleCatalog><ObjName>食堂</ObjName>"
                "<ReferenceObjName>r</ReferenceObjName></R></b></a>");
    ASSERT_EQ(outline(rules), "R: R");
    const NuxStandardCheckRule rule = rules["R"][0];
    const QStringList texts{rule.elementType, rule.type, rule.propertyType, rule.standard,
                            rule.referenceElementType};
    EXPECT_EQ(texts.join("|"), " E |self|P|S & T|F");
    const QStringList limits{rule.constraintCondition, rule.distantValue, rule.ruleDescription,
                             rule.ruleCatalog};
    EXPECT_EQ(limits.join("|"), "less or more|6:10|one two three| c ");
    EXPECT_EQ(rule.ruleDetailDescription + "|" + rule.objName + "|" + rule.referenceObjName, "|食堂|r");
    EXPECT_EQ(rule.handle, 0);
    EXPECT_TRUE(rule.relatedHandles.empty());
    EXPECT_FALSE(rule.flag);
}

TEST(RuleStore, ReadsOnceAtTheFirstCallAndSelectsByExactType) {
    const RuleFileInPlace first;
    first.write("<a><g><R Type='self'/><R Type='distant'/><Q Type='self'/><P Type='selfish'/></g></a>");
    NUXRuleConfigFile* store = NUXRuleConfigFile::Single();
    const RuleFileInPlace second;
    second.write("<a><g><Second Type='self'/></g></a>");
    store->setConfigFilePath(second.root.path());
    EXPECT_EQ(NUXRuleConfigFile::Single(), store);
    EXPECT_EQ(outline(store->getAllRuleMap()), "P: P; Q: Q; R: R R");
    EXPECT_EQ(outline(NUXRuleConfigFile(*store).getAllRuleMap()), "P: P; Q: Q; R: R R");

    EXPECT_EQ(outline(store->getRuleMapFromType("self")), "Q: Q; R: R");
    EXPECT_EQ(outline(store->getRuleMapFromType("distant")), "R: R");
    EXPECT_EQ(outline(store->getRuleMapFromType("Self")), "");
}
