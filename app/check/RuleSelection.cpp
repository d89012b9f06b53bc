#include "check/RuleSelection.h"

#include "InputError.h"
#include "text/nearest_name.h"
#include "text/shortened.h"

#include <QRegularExpression>

#include <algorithm>

namespace firecheck {

namespace {

[[noreturn]] void refuse(const std::string& pattern, const std::vector<QString>& names) {
    std::vector<std::string> known;
    for (const QString& name : names)
        known.push_back(name.toStdString());
    const auto nearest = nearestName(pattern, known);
    throw InputError("No rule has a name like \"" + shortened(pattern) + "\". " +
                     (nearest ? "Did you mean \"" + *nearest + "\"? " : std::string()) +
                     "Try \"firecheck show-rules\".");
}

std::vector<bool> fitting(const QStringList& patterns, const std::vector<QString>& names) {
    std::vector<bool> fits(names.size());
    for (const QString& pattern : patterns) {
        const QRegularExpression expression(
            QRegularExpression::anchoredPattern(QRegularExpression::escape(pattern)
                                                    .replace(QStringLiteral("\\*"), QStringLiteral(".*"))
                                                    .replace(QStringLiteral("\\?"), QStringLiteral("."))));
        bool hasFound = false;
        for (std::size_t i = 0; i < names.size(); ++i)
            if (expression.match(names[i]).hasMatch())
                hasFound = fits[i] = true;
        if (!hasFound)
            refuse(pattern.toStdString(), names);
    }
    return fits;
}

template <class Item, class Test> void removeIf(std::vector<Item>& items, Test test) {
    items.erase(std::remove_if(items.begin(), items.end(), test), items.end());
}

} // namespace

RuleSelection::RuleSelection(const QStringList& selected, const QStringList& ignored,
                             const std::vector<QString>& ruleNames) {
    const std::vector<bool> isSelected = fitting(selected, ruleNames);
    const std::vector<bool> isIgnored = fitting(ignored, ruleNames);
    for (std::size_t i = 0; i < ruleNames.size(); ++i)
        if (isIgnored[i] || (!selected.isEmpty() && !isSelected[i]))
            m_leftOut.push_back(ruleNames[i]);
    std::sort(m_leftOut.begin(), m_leftOut.end());
}

bool RuleSelection::isTold(const QString& ruleName) const {
    return !std::binary_search(m_leftOut.begin(), m_leftOut.end(), ruleName);
}

void RuleSelection::applyTo(SiteReport& report) const {
    const std::size_t before = report.judged.size();
    removeIf(report.findings, [&](const Finding& finding) { return !isTold(report.record(finding).name); });
    removeIf(report.counts, [&](const RuleCount& count) { return !isTold(count.ruleName); });
    removeIf(report.judged, [&](const JudgedRule& judged) { return !isTold(judged.rule.name); });
    for (firestandard::UnjudgedElement& element : report.unjudged)
        removeIf(element.rules, [&](const QString& name) { return !isTold(name); });
    removeIf(report.unjudged,
             [](const firestandard::UnjudgedElement& element) { return element.rules.empty(); });
    report.leftOutRules = before - report.judged.size();
}

} // namespace firecheck
