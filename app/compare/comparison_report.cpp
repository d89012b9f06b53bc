#include "compare/comparison_report.h"

#include "report/counts.h"
#include "text/printable.h"
#include "text/words.h"

#include <QStringList>

namespace firecheck {

namespace {

std::string line(const std::string& text) {
    return "  " + printable(text) + "\n";
}

std::string findingLines(const SavedFinding& finding) {
    const std::string text =
        line(finding.isAccepted
                 ? filled(Words::tr("%1: %2 (accepted)", "rule, sentence"), finding.rule, finding.sentence)
                 : filled(Words::tr("%1: %2", "rule, sentence"), finding.rule, finding.sentence));
    return finding.further == 0 ? text : text + "  " + line(filled(furtherText(finding.further)));
}

std::string changedLines(const ChangedFinding& changed) {
    const SavedFinding& before = changed.before;
    return findingLines(changed.after) + "  " + line(filled(Words::tr("before: %1"), before.sentence)) +
           (before.further == 0 ? std::string() : "    " + line(filled(furtherText(before.further))));
}

std::string lostLines(const LostFinding& lost) {
    return findingLines(lost.before) + "  " + line(lost.reason);
}

template <class Item, class Lines>
std::string section(const QString& title, const std::vector<Item>& items, Lines lines) {
    if (items.empty())
        return {};
    std::string text = "\n" + title.toStdString() + "\n";
    for (const Item& item : items)
        text += lines(item);
    return text;
}

std::size_t countOf(const std::vector<SavedFinding>& findings) {
    std::size_t count = 0;
    for (const SavedFinding& finding : findings)
        count += 1 + finding.further;
    return count;
}

std::size_t countOf(const std::vector<LostFinding>& findings) {
    std::size_t count = 0;
    for (const LostFinding& finding : findings)
        count += 1 + finding.before.further;
    return count;
}

std::string summary(const SiteComparison& site) {
    const QStringList counts{Words::tr("%1 new", "count").arg(countOf(site.appeared)),
                             Words::tr("%1 worse", "count").arg(site.worse.size()),
                             Words::tr("%1 better", "count").arg(site.better.size()),
                             Words::tr("%1 gone", "count").arg(countOf(site.gone)),
                             Words::tr("%1 no longer judged", "count").arg(countOf(site.lost)),
                             Words::tr("%1 unchanged", "count").arg(site.unchanged)};
    return counts.join(Words::tr(", ")).toStdString() + "\n";
}

Json findingJson(const SavedFinding& finding) {
    return {{"rule", finding.rule},
            {"handle", finding.handle},
            {"relatedHandles", finding.related},
            {"sentence", finding.sentence},
            {"accepted", finding.isAccepted},
            {"further", finding.further},
            {"missing", finding.missing ? Json(*finding.missing) : Json()}};
}

Json changedJson(const ChangedFinding& changed) {
    return {{"before", findingJson(changed.before)}, {"after", findingJson(changed.after)}};
}

Json lostJson(const LostFinding& lost) {
    return {{"before", findingJson(lost.before)}, {"reason", lost.reason}};
}

template <class Item, class ToJson> Json list(const std::vector<Item>& items, ToJson toJson) {
    Json result = Json::array();
    for (const Item& item : items)
        result.push_back(toJson(item));
    return result;
}

} // namespace

std::string comparisonText(const std::vector<SiteComparison>& comparisons) {
    std::string text;
    for (const SiteComparison& site : comparisons)
        text += (text.empty() ? "" : "\n") + printable(site.file) +
                (site.name.empty() ? "" : ": " + printable(site.name)) + "\n" + summary(site) +
                section(Words::tr("New"), site.appeared, findingLines) +
                section(Words::tr("Worse"), site.worse, changedLines) +
                section(Words::tr("No longer judged"), site.lost, lostLines) +
                section(Words::tr("Better"), site.better, changedLines) +
                section(Words::tr("Gone"), site.gone, findingLines);
    return text;
}

Json comparisonJson(const std::vector<SiteComparison>& comparisons) {
    return {{"sites", list(comparisons, [](const SiteComparison& site) {
                 return Json{{"file", site.file},
                             {"name", site.name},
                             {"new", list(site.appeared, findingJson)},
                             {"worse", list(site.worse, changedJson)},
                             {"better", list(site.better, changedJson)},
                             {"gone", list(site.gone, findingJson)},
                             {"noLongerJudged", list(site.lost, lostJson)},
                             {"unchanged", site.unchanged}};
             })}};
}

} // namespace firecheck
