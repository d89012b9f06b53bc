#include "lint/lint_report.h"

#include "text/printable.h"
#include "text/words.h"

namespace firecheck {

std::string lintReportText(const std::string& fileName, const std::vector<LintFinding>& findings) {
    const std::string file = printable(fileName);
    std::string text;
    for (const LintFinding& finding : findings) {
        const std::string message = finding.suggestion.empty() ? finding.message
                                                               : filled(Words::tr("%1 Did you mean \"%2\"?"),
                                                                        finding.message, finding.suggestion);
        const std::string line = finding.rule.empty()
                                     ? message
                                     : filled(Words::tr("%1: %2", "rule, message"), finding.rule, message);
        text += file + ":" + std::to_string(finding.place.line) + ":" + std::to_string(finding.place.column) +
                ": " + printable(line) + " [" + finding.code + "]\n";
    }
    return text + file + ": " +
           (findings.empty() ? filled(Words::tr("clean")) : countedFindings(findings.size())) + "\n";
}

Json lintReportJson(const std::string& fileName, const std::vector<LintFinding>& findings) {
    Json list = Json::array();
    for (const LintFinding& finding : findings) {
        Json entry = {{"line", finding.place.line}, {"column", finding.place.column}, {"code", finding.code}};
        if (!finding.rule.empty())
            entry["rule"] = finding.rule;
        entry["message"] = finding.message;
        if (!finding.suggestion.empty())
            entry["suggestion"] = finding.suggestion;
        list.push_back(std::move(entry));
    }
    return {{"file", fileName}, {"findings", std::move(list)}};
}

std::string countedFindings(std::size_t count) {
    return filled(count == 1 ? Words::tr("1 finding")
                             : Words::tr("%n findings", "", static_cast<int>(count)));
}

} // namespace firecheck
