#include "suggest/suggestion_text.h"

#include "explain/Words.h"
#include "text/printable.h"

namespace firecheck {

using firestandard::Words;

namespace {

std::string line(int indent, const std::string& text) {
    return std::string(static_cast<std::size_t>(indent), ' ') + printable(text) + "\n";
}

std::string line(const QString& text) {
    return line(0, text.toStdString());
}

std::string headText(const SiteReport& report) {
    const std::size_t count = report.violationCount();
    const QString violations = count == 0   ? Words::tr("no violations")
                               : count == 1 ? Words::tr("1 violation")
                                            : Words::tr("%n violations", "", static_cast<int>(count));
    const std::string title = report.fileName + (report.siteName.empty() ? "" : ": " + report.siteName);
    return line(0, title) + line(violations);
}

/// How many findings a step removes besides the one it is for.
std::string alsoText(const SuggestedStep& step) {
    const std::size_t count = step.removes.size();
    if (count < 2)
        return {};
    return (count == 2 ? Words::tr("this removes 1 other offence as well")
                       : Words::tr("this removes %n other offences as well", "", static_cast<int>(count) - 1))
        .toStdString();
}

} // namespace

std::vector<std::string> suggestionLines(const Suggestion& suggestion) {
    std::vector<std::string> lines;
    if (suggestion.steps.empty())
        lines.push_back(
            Words::tr("No suggestion: %1").arg(QString::fromStdString(suggestion.obstacle)).toStdString());
    for (std::size_t i = 0; i < suggestion.steps.size(); ++i) {
        const QString sentence = QString::fromStdString(suggestion.steps[i].sentence);
        lines.push_back(
            (i == 0 ? Words::tr("Suggestion: %1") : Words::tr("and then: %1")).arg(sentence).toStdString());
    }
    return lines;
}

std::string suggestionsText(const SiteReport& report) {
    std::string text = headText(report);
    for (const Suggestion& suggestion : *report.suggestions) {
        const Finding& finding = report.findings[suggestion.finding];
        text += "\n" + line(0, report.record(finding).name.toStdString()) + line(2, finding.sentence);
        for (const std::string& each : suggestionLines(suggestion))
            text += line(4, each);
        for (const SuggestedStep& step : suggestion.steps)
            if (const std::string also = alsoText(step); !also.empty())
                text += line(6, also);
    }
    return text;
}

std::string planText(const SiteReport& report, const SitePlan& plan) {
    std::string text = headText(report);
    const int count = static_cast<int>(plan.steps.size());
    text += "\n" + line(count == 0   ? Words::tr("No change helps")
                        : count == 1 ? Words::tr("1 change")
                                     : Words::tr("%n changes, one after the other", "", count));
    for (std::size_t i = 0; i < plan.steps.size(); ++i) {
        text += line(2, std::to_string(i + 1) + ". " + plan.steps[i].sentence);
        if (const std::string also = alsoText(plan.steps[i]); !also.empty())
            text += line(5, also);
    }
    text += "\n" + line(plan.remaining.empty() ? Words::tr("Nothing remains") : Words::tr("What remains"));
    for (const SitePlan::Remainder& remainder : plan.remaining)
        text += line(2, remainder.sentence) + line(4, remainder.obstacle);
    return text;
}

} // namespace firecheck
