#include "InputError.h"
#include "elements/NUXElementObject.h"
#include "evaluators/distant/pair_distance.h"
#include "lint/RuleFileNode.h"
#include "rules/element_type_names.h"
#include "rules/vocabulary.h"
#include "rules/vocabulary_report.h"
#include "site_file/site_reader.h"
#include "source_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace firecheck;
using firestandard::findRule;
using firestandard::kNoBodyDistance;
using firestandard::RuleRow;

// Holds the table of rule names against the shipped rule file and the distances against what is measured.

namespace {

/// An element that reports `identifier`. Roads, sheds and prefab houses are what they say, all else is a
/// plain element with a footprint.
Json elementJson(long long handle, const std::string& identifier, int x, int shedUse = 0) {
    if (identifier == "NUX_EDO_TYPE_ROAD")
        return {
            {"class", "road"}, {"handle", handle}, {"fireRoad", true}, {"start", {x, 0}}, {"end", {x, 9000}}};
    Json element = {{"class", "building"}, {"handle", handle}, {"identifier", identifier},
                    {"center", {x, 0}},    {"length", 1000},   {"depth", 1000}};
    if (identifier == "NUX_ELEMENT_TYPE_PREFABHOUSE" || identifier == "NUX_ELEMENT_TYPE_OPENHOUSE") {
        element["class"] = identifier == "NUX_ELEMENT_TYPE_OPENHOUSE" ? "openShed" : "prefabHouse";
        element["use"] = shedUse;
    }
    return element;
}

double distanceBetween(const std::string& first, const std::string& reference,
                       const std::string& ruleName = {}, int shedUse = 0) {
    const Site site = readSite(Json{
        {"objects", {elementJson(1, first, 50000, shedUse), elementJson(2, reference, 100000, shedUse)}}});
    const auto* firstElement = NUXElementObject::Cast(site.document->GetItem(1, UdDb::kForRead));
    const auto* otherElement = NUXElementObject::Cast(site.document->GetItem(2, UdDb::kForRead));
    const std::wstring firstType = firstElement->getElementType();
    const std::wstring otherType = otherElement->getElementType();
    const RuleRow* row = findRule(QString::fromStdString(ruleName), "distant");
    return pairDistance({firstElement, firstType}, {otherElement, otherType}, row).distance;
}

TEST(RuleVocabulary, HoldsTheNamesOfTheShippedRuleFileWithTheirTypes) {
    std::set<std::string> shipped;
    for (const RuleFileNode& group :
         readRuleFileNodes(SOURCE_DIRECTORY "/data/FireStandardCheck.xml").root.children) {
        for (const RuleFileNode& rule : group.children) {
            const RuleName* known = findRuleName(rule.name);
            if (!known)
                continue;
            shipped.insert(known->name);
            EXPECT_EQ(known->type, rule.value("Type")) << rule.name;
            EXPECT_EQ(known->elementType, rule.value("ElementType")) << rule.name;
            EXPECT_EQ(known->referenceElementType, rule.value("ReferenceElementType")) << rule.name;
        }
    }
    EXPECT_EQ(shipped.size(), 57u);
    EXPECT_EQ(ruleNames().size(), 57u);
}

TEST(RuleVocabulary, KnowsTheDistancesThatAreMeasured) {
    const std::string shed = "NUX_ELEMENT_TYPE_OPENHOUSE";
    for (const DistanceMeasure& measure : distanceMeasures()) {
        const auto& references = measure.referenceElementTypes;
        for (const std::string& reference : elementTypeNames()) {
            const bool isListed =
                std::find(references.begin(), references.end(), reference) != references.end();
            if (reference == shed)
                continue;
            EXPECT_EQ(distanceBetween(measure.elementType, reference) < kNoBodyDistance, isListed)
                << measure.elementType << " to " << reference;
        }
    }
    for (const std::string& first : elementTypeNames())
        EXPECT_EQ(distanceBetween(first, "NUX_EDO_TYPE_WOODYARD") > 0.0,
                  findDistanceMeasure(first) != nullptr)
            << first;
}

TEST(RuleVocabulary, KnowsTheNamesUnderWhichShedsCount) {
    for (const DistanceMeasure& measure : distanceMeasures()) {
        for (const RuleName& rule : ruleNames()) {
            bool isCounted = false;
            for (int use = 0; use <= 4; ++use)
                isCounted = isCounted || distanceBetween(measure.elementType, "NUX_ELEMENT_TYPE_OPENHOUSE",
                                                         rule.name, use) < kNoBodyDistance;
            EXPECT_EQ(isCounted, rule.type == "distant" && rule.elementType == measure.elementType)
                << rule.name << " from " << measure.elementType;
        }
    }
}

TEST(RuleVocabulary, IsPublishedAsItIs) {
    EXPECT_EQ(sourceText("docs/rule-names.md"), vocabularyMarkdown());
}

} // namespace
