#include "lint/lint_distance_rule.h"

#include "lint/lint_attributes.h"
#include "rules/vocabulary.h"
#include "text/words.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <optional>

namespace firecheck {

namespace {

const std::string kLess = "less";
const std::string kLessOrMore = "less or more";
const std::string kOpenShed = "NUX_ELEMENT_TYPE_OPENHOUSE";

struct Limits {
    double minimum;
    std::optional<double> maximum;
};

class DistanceRuleLinter {
public:
    DistanceRuleLinter(const RuleFileNode& rule, LintFindings& findings)
        : m_rule(rule), m_findings(findings), m_elementType(rule.value("ElementType")),
          m_referenceType(rule.value("ReferenceElementType")), m_condition(rule.value("ConstraintCondition")),
          m_value(rule.value("DistantValue")) {}

    void lint(bool areTypesRight) {
        lintCondition();
        const std::optional<Limits> limits = lintValue();
        if (limits)
            lintLimits(*limits);
        if (!areTypesRight)
            return;
        if (const DistanceMeasure* measure = findDistanceMeasure(m_elementType))
            lintPair(*measure, limits);
        else if (limits && limits->minimum > 0.0)
            m_findings.add(
                valuePlace(), "always-finds",
                filled(
                    Words::tr(
                        "%1 is not measured and counts as 0 m away: every pair offends against a minimum."),
                    m_elementType));
    }

private:
    Place placeOf(const char* attribute) const {
        const RuleFileAttribute* found = m_rule.attribute(attribute);
        return found ? found->place : m_rule.place;
    }
    Place valuePlace() const { return placeOf("DistantValue"); }

    void lintCondition() {
        if (m_condition == kLess || m_condition == kLessOrMore)
            return;
        m_findings.add(
            placeOf("ConstraintCondition"), "unknown-condition",
            filled(Words::tr("The condition \"%1\" never judges: no distance offends."), m_condition),
            nearestOf(m_condition, {kLess, kLessOrMore}));
    }

    /// As the rule reads it: infinite values are taken as they are, whatever else is no number as 0.
    std::optional<double> number(const QString& part) {
        bool isNumber = false;
        const double value = part.toDouble(&isNumber);
        if (isNumber && std::isfinite(value) && value >= 0.0)
            return value;
        const QString consequence = std::isnan(value)   ? Words::tr("No distance offends against it.")
                                    : std::isinf(value) ? Words::tr("It counts as infinite.")
                                    : isNumber          ? Words::tr("No distance is below it.")
                                                        : Words::tr("It counts as 0 m.");
        m_findings.add(valuePlace(), "bad-distance",
                       filled(Words::tr("\"%1\" is no distance, which is a number of metres, 0 or more. %2",
                                        "given, what it means"),
                              part, consequence));
        return std::nullopt;
    }

    std::optional<Limits> lintValue() {
        const QStringList parts = QString::fromStdString(m_value).split(':');
        if (parts.size() > 2)
            m_findings.add(
                valuePlace(), "bad-distance",
                filled(Words::tr(
                    "Only a minimum and a maximum are read; what follows the second \":\" is not.")));
        const auto minimum = number(parts[0]);
        if (parts.size() == 1)
            return minimum ? std::optional<Limits>({*minimum, std::nullopt}) : std::nullopt;
        if (m_condition == kLess) {
            m_findings.add(
                valuePlace(), "bad-distance",
                filled(Words::tr("Under \"less\" the maximum is not read; it is under \"less or more\".")));
            return std::nullopt;
        }
        const auto maximum = number(parts[1]);
        return minimum && maximum ? std::optional<Limits>({*minimum, maximum}) : std::nullopt;
    }

    void lintLimits(const Limits& limits) {
        if (limits.maximum && limits.minimum > *limits.maximum)
            m_findings.add(valuePlace(), "bad-distance",
                           filled(Words::tr("The minimum is above the maximum: every distance offends.")));
        constexpr double farthest = 1000.0;
        for (const double limit : {limits.minimum, limits.maximum.value_or(0.0)})
            if (limit > farthest)
                m_findings.add(
                    valuePlace(), "doubtful-distance",
                    filled(Words::tr("A distance of %1 m is more than any site has: limits are in metres."),
                           QString::number(limit, 'g', 10)));
    }

    void lintPair(const DistanceMeasure& measure, const std::optional<Limits>& limits) {
        const auto& references = measure.referenceElementTypes;
        if (std::find(references.begin(), references.end(), m_referenceType) == references.end()) {
            neverFinds(
                placeOf("ReferenceElementType"),
                filled(
                    Words::tr("Distances from %1 to %2 are not measured. The rule can never find anything."),
                    m_elementType, m_referenceType),
                isMeasuredTheOtherWay()
                    ? filled(Words::tr("%1 to %2", "element types"), m_referenceType, m_elementType)
                    : std::string());
            return;
        }
        if (m_referenceType == kOpenShed)
            lintShedName();
        if (limits && limits->minimum == 0.0 && !limits->maximum)
            neverFinds(valuePlace(),
                       filled(Words::tr(
                           "No distance is below a minimum of 0 m. The rule can never find anything.")));
    }

    bool isMeasuredTheOtherWay() const {
        const DistanceMeasure* other = findDistanceMeasure(m_referenceType);
        if (!other || m_elementType == kOpenShed)
            return false;
        const auto& references = other->referenceElementTypes;
        return std::find(references.begin(), references.end(), m_elementType) != references.end();
    }

    /// A name of another first type has its finding already, with the element types.
    void lintShedName() {
        std::vector<std::string> names;
        for (const RuleName& name : ruleNames())
            if (name.type == "distant" && name.elementType == m_elementType)
                names.push_back(name.name);
        if (std::find(names.begin(), names.end(), m_rule.name) == names.end())
            m_findings.add(
                m_rule.place, "unknown-name",
                filled(Words::tr(
                    "Under this name no open shed counts: which ones do, the rule's name decides.")),
                nearestOf(m_rule.name, names));
    }

    void neverFinds(const Place& place, const std::string& why, const std::string& suggestion = {}) {
        m_findings.add(place, "never-finds", why, suggestion);
    }

    const RuleFileNode& m_rule;
    LintFindings& m_findings;
    const std::string m_elementType;
    const std::string m_referenceType;
    const std::string m_condition;
    const std::string m_value;
};

} // namespace

void lintDistanceRule(const RuleFileNode& rule, bool areTypesRight, LintFindings& findings) {
    DistanceRuleLinter(rule, findings).lint(areTypesRight);
}

} // namespace firecheck
