#include "lint/lint_report.h"

#include "text/printable.h"

namespace firecheck {

std::string lintReportText(const std::string& fileName, const std::vector<LintFinding>& findings) {
    const std::string file = printable(fileName);
    std::string text;
    for (const LintFinding& finding : findings) {
        std::string line = finding.rule.empty() ? finding.message : finding.rule + ": " + finding.message;
        if (!finding.suggestion.empty())
            line += " Did you mean \"" + finding.suggestion + "\"?";
        text += file + ":" + std::to_string(finding.place.line) + ":" + std::to_string(finding.place.column) +
                ": " + printable(line) + " [" + finding.code + "]\n";
    }
    return text + file + ": " + (findings.empty() ? "clean" : countedFindings(findings.size())) + "\n";
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
    return std::to_string(count) + (count == 1 ? " finding" : " findings");
}

} // namespace firecheck
