#include "report/merged_findings.h"

#include <QHash>
#include <QStringList>

#include <map>
#include <tuple>

namespace firecheck {

std::vector<std::size_t> ruleIndices(const SiteReport& report) {
    QHash<QString, std::size_t> indexOf;
    for (std::size_t i = 0; i < report.counts.size(); ++i)
        indexOf.insert(report.counts[i].ruleName, i);
    std::vector<std::size_t> indices;
    for (const Finding& finding : report.findings)
        indices.push_back(indexOf.value(report.record(finding).name));
    return indices;
}

std::vector<MergedFinding> mergedFindings(const SiteReport& report) {
    const std::vector<std::size_t> rules = ruleIndices(report);
    using Content = std::tuple<std::string, std::optional<std::string>, bool, std::size_t, std::size_t,
                               long long, std::vector<qint64>>;
    std::map<std::pair<Content, std::size_t>, std::size_t> timesOfRule;
    std::map<std::pair<Content, std::size_t>, std::size_t> known; // by how often one rule has said it before
    std::vector<MergedFinding> merged;
    for (std::size_t i = 0; i < report.findings.size(); ++i) {
        const Finding& finding = report.findings[i];
        const NuxStandardCheckRule& record = report.record(finding);
        const Content content(finding.sentence, finding.acceptedBecause, finding.outgrown.has_value(),
                              finding.further, finding.furtherAccepted, record.handle, record.relatedHandles);
        const std::size_t times = timesOfRule[{content, rules[i]}]++;
        const auto [place, isNew] = known.emplace(std::pair(content, times), merged.size());
        if (isNew)
            merged.emplace_back();
        MergedFinding& whole = merged[place->second];
        whole.numbers.push_back(i + 1);
        whole.rules.push_back(rules[i]);
        whole.records += finding.recordCount();
        whole.accepted += finding.acceptedCount();
    }
    return merged;
}

QString numbersText(const std::vector<std::size_t>& numbers) {
    QStringList runs;
    for (std::size_t first = 0; first < numbers.size();) {
        std::size_t last = first;
        while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1)
            ++last;
        QString run = QString::number(numbers[first]);
        if (last > first)
            run += QChar(0x2013) + QString::number(numbers[last]);
        runs << run;
        first = last + 1;
    }
    return runs.join(QStringLiteral(", "));
}

} // namespace firecheck
