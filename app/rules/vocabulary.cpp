#include "rules/vocabulary.h"

#include "evaluators/rule_catalogue.h"
#include "explain/number_word.h"
#include "explain/rule_wording.h"
#include "site/element_type_identifiers.h"
#include "text/words.h"

#include <QString>

#include <algorithm>

namespace firecheck {

using firestandard::AttributesRead;
using firestandard::DistanceRow;
using firestandard::RequiredUse;
using firestandard::RuleRow;
using firestandard::RuleTest;

namespace {

std::string utf8Text(std::wstring_view identifier) {
    return QString::fromWCharArray(identifier.data(), static_cast<int>(identifier.size())).toStdString();
}

QString useText(const RequiredUse& use) {
    return use.of == RequiredUse::Of::ClosedHouse ? QString::fromStdString(utf8Text(use.name))
                                                  : QString::number(use.code);
}

/// What the explained catalogue has for a wording with placeholders, translated where linters and reports
/// tell it.
std::string filledIn(const char* wording, const RuleRow& row) {
    if (!*wording)
        return {}; // an empty text asks a translation for its head
    QString text = Words::tr(wording);
    text.replace("{use}", useText(row.use));
    text.replace("{limit}", QString::number(row.fixedLimits[0]));
    text.replace("{floors}",
                 QString::fromStdString(firestandard::numberWord(static_cast<int>(row.fixedLimits[1]))));
    return text.toStdString();
}

/// What absence rules have in common, whatever their names.
const std::string kOfAnyFacility =
    "With an empty PropertyType any element of the type will do; a 3-D model of the type always does.";

std::string peculiarityOf(const RuleRow& row, const firestandard::RuleWording& wording) {
    const std::string own = filledIn(wording.peculiarity, row);
    if (row.test != RuleTest::RequiredFacility)
        return own;
    return own.empty() ? kOfAnyFacility : kOfAnyFacility + " " + own;
}

std::vector<std::string> namesOf(const AttributesRead& read) {
    std::vector<std::string> names;
    const auto add = [&names](bool isRead, const char* name) {
        if (isRead)
            names.push_back(name);
    };
    add(read.elementType, "ElementType");
    add(read.referenceElementType, "ReferenceElementType");
    add(read.propertyType, "PropertyType");
    add(read.constraintCondition, "ConstraintCondition");
    add(read.distantValue, "DistantValue");
    return names;
}

std::vector<RuleName> explained(const std::vector<RuleRow>& rows) {
    std::vector<RuleName> names;
    for (const RuleRow& row : rows) {
        const firestandard::RuleWording& wording = *firestandard::findRuleWording(row.name);
        names.push_back({row.name, row.type, utf8Text(row.elementType), utf8Text(row.referenceElementType),
                         namesOf(row.reads()), filledIn(wording.judges, row), filledIn(wording.limits, row),
                         peculiarityOf(row, wording)});
    }
    return names;
}

std::string noteOn(std::wstring_view elementType) {
    if (elementType == NUX_ELEMENT_TYPE_PREFABHOUSE)
        return "Stairs included; of the roads only fire roads count; prefab houses among themselves are "
               "measured once a pair, and reported under the earlier.";
    if (elementType == NUX_ELEMENT_TYPE_TRANSFORMERSUBSTATION)
        return "A rule from transformer substations to themselves spaces the total step-down substations "
               "instead, once a pair.";
    if (elementType == NUX_EDO_TYPE_ROAD)
        return "Fire roads only; other roads are passed over.";
    return {};
}

std::vector<DistanceMeasure> explained(const std::vector<DistanceRow>& rows) {
    std::vector<DistanceMeasure> measures;
    for (const DistanceRow& row : rows) {
        std::vector<std::string> references;
        for (const std::wstring_view reference : row.referenceElementTypes)
            references.push_back(utf8Text(reference));
        measures.push_back({utf8Text(row.elementType), std::move(references), noteOn(row.elementType)});
    }
    return measures;
}

template <class Entry>
const Entry* find(const std::vector<Entry>& entries, std::string Entry::*key, const std::string& wanted) {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const Entry& entry) { return entry.*key == wanted; });
    return found == entries.end() ? nullptr : &*found;
}

} // namespace

const std::vector<RuleName>& ruleNames() {
    static const std::vector<RuleName> names = explained(firestandard::ruleCatalogue());
    return names;
}

const RuleName* findRuleName(const std::string& name) {
    return find(ruleNames(), &RuleName::name, name);
}

const std::vector<std::string>& ruleTypes() {
    static const std::vector<std::string> types(firestandard::ruleTypes().begin(),
                                                firestandard::ruleTypes().end());
    return types;
}

std::vector<std::string> attributesRead(const std::string& type) {
    return namesOf(firestandard::attributesRead(QString::fromStdString(type)));
}

const std::vector<DistanceMeasure>& distanceMeasures() {
    static const std::vector<DistanceMeasure> measures = explained(firestandard::distanceCatalogue());
    return measures;
}

const DistanceMeasure* findDistanceMeasure(const std::string& elementType) {
    return find(distanceMeasures(), &DistanceMeasure::elementType, elementType);
}

} // namespace firecheck
