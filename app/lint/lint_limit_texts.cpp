#include "lint/lint_limit_texts.h"

#include "evaluators/rule_catalogue.h"
#include "text/words.h"

#include <QRegularExpression>
#include <QString>

#include <algorithm>
#include <cmath>

namespace firecheck {

namespace {

using firestandard::RuleTest;

struct RuleLimits {
    std::vector<double> values; ///< none for a rule without a limit of this unit
    bool isArea = false;
};

RuleLimits fixedLimits(const firestandard::RuleRow& row) {
    switch (row.test) {
    case RuleTest::RoadMinWidth:
    case RuleTest::FireExtinguisherBox:
    case RuleTest::FireRoadHeadroom:
        return {{row.fixedLimits[0] / firestandard::kMillimetresPerMetre}};
    case RuleTest::PrefabHouseFloorArea:
    case RuleTest::PrefabHouseRoomArea:
        return {{row.fixedLimits[0]}, true};
    default:
        return {};
    }
}

RuleLimits limitsOf(const RuleFileNode& rule) {
    const QString type = QString::fromStdString(rule.value("Type"));
    if (type == "distant") {
        RuleLimits limits;
        for (const QString& part : QString::fromStdString(rule.value("DistantValue")).split(':'))
            limits.values.push_back(part.toDouble());
        // What is no distance is told as that.
        const bool areDistances = std::all_of(limits.values.begin(), limits.values.end(), [](double limit) {
            return limit >= 0.0 && std::isfinite(limit);
        });
        return areDistances ? limits : RuleLimits();
    }
    const auto* row = firestandard::findRule(QString::fromStdString(rule.name), type);
    return row ? fixedLimits(*row) : RuleLimits();
}

/// "4", "3.5" and the like before "m", "metres", "米" or "m2", "m²", "平方米".
std::optional<double> firstFigure(const std::string& text, bool isArea) {
    static const QString number = QStringLiteral("(?<![A-Za-z0-9.,])(\\d+(?:\\.\\d+)?)\\s*");
    static const QRegularExpression length(number +
                                           QStringLiteral("(?:(?:m|met(?:re|er)s?)(?![A-Za-z0-9²])|米)"));
    static const QRegularExpression area(number +
                                         QStringLiteral("(?:m²|m2|sq m|㎡|平方米|square met(?:re|er)s?)"));
    const auto match = (isArea ? area : length).match(QString::fromStdString(text));
    return match.hasMatch() ? std::optional(match.captured(1).toDouble()) : std::nullopt;
}

} // namespace

void lintLimitTexts(const RuleFileNode& rule, LintFindings& findings) {
    const RuleLimits limits = limitsOf(rule);
    if (limits.values.empty())
        return;
    for (const RuleFileNode& text : rule.children) {
        if (text.name != "RuleDescription" && text.name != "RuleDetailDescription")
            continue;
        const auto figure = firstFigure(text.text, limits.isArea);
        if (!figure || std::any_of(limits.values.begin(), limits.values.end(),
                                   [&](double limit) { return std::abs(limit - *figure) < 1e-9; }))
            continue;
        const auto shown = [&](double value) {
            return QString::number(value, 'g', 10) + (limits.isArea ? " m²" : " m");
        };
        findings.add(text.place, "other-limit",
                     filled(Words::tr("The text speaks of %1, but the rule judges by %2."), shown(*figure),
                            shown(limits.values.front())));
    }
}

} // namespace firecheck
