#include "site_lint/site_lint_report.h"

#include "text/printable.h"

#include <algorithm>

namespace firecheck {

namespace {

std::string counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::size_t countOf(const SiteFindings& findings, SiteFinding::Kind kind) {
    return std::size_t(std::count_if(findings.findings.begin(), findings.findings.end(),
                                     [kind](const SiteFinding& finding) { return finding.kind == kind; }));
}

const char* nameOf(SiteFinding::Kind kind) {
    return kind == SiteFinding::Kind::Error ? "error" : "doubt";
}

std::string lineOf(const SiteFinding& finding) {
    std::string line = std::string(nameOf(finding.kind)) + ": ";
    if (!finding.object.text().empty())
        line += finding.object.text() + ", ";
    line += (finding.pointer.empty() ? "top level" : finding.pointer) + ": " + finding.message;
    if (!finding.suggestion.empty())
        line += std::string(finding.message.back() == '.' ? " D" : "; d") + "id you mean \"" +
                finding.suggestion + "\"?";
    return line + " [" + finding.code + "]";
}

std::string summary(const SiteFindings& findings) {
    const std::size_t errors = countOf(findings, SiteFinding::Kind::Error);
    const std::size_t doubts = countOf(findings, SiteFinding::Kind::Doubt);
    if (errors > 0)
        return counted(errors, "error");
    return doubts > 0 ? countedDoubts(doubts) : "clean";
}

} // namespace

std::string siteLintText(const SiteFindings& findings) {
    const std::string file = printable(findings.fileName);
    std::string text;
    for (const SiteFinding& finding : findings.findings)
        text += file + ":" + std::to_string(finding.place.line) + ":" + std::to_string(finding.place.column) +
                ": " + printable(lineOf(finding)) + "\n";
    return text + file + ": " + summary(findings) + "\n";
}

Json siteLintJson(const SiteFindings& findings) {
    Json list = Json::array();
    for (const SiteFinding& finding : findings.findings) {
        Json entry = {{"kind", nameOf(finding.kind)},
                      {"line", finding.place.line},
                      {"column", finding.place.column},
                      {"pointer", finding.pointer},
                      {"code", finding.code}};
        if (!finding.object.handle.empty())
            entry["handle"] = finding.object.handle;
        if (!finding.object.name.empty())
            entry["name"] = finding.object.name;
        entry["message"] = finding.message;
        if (!finding.suggestion.empty())
            entry["suggestion"] = finding.suggestion;
        list.push_back(std::move(entry));
    }
    Json result = {{"file", findings.fileName}, {"findings", std::move(list)}};
    if (!findings.failure.empty())
        result["failure"] = findings.failure;
    return result;
}

std::string countedDoubts(std::size_t count) {
    return counted(count, "doubt");
}

} // namespace firecheck
