#include "site_lint/site_lint_report.h"

#include "text/advice.h"
#include "text/printable.h"
#include "text/words.h"

#include <algorithm>

namespace firecheck {

namespace {

std::size_t countOf(const SiteFindings& findings, SiteFinding::Kind kind) {
    return std::size_t(std::count_if(findings.findings.begin(), findings.findings.end(),
                                     [kind](const SiteFinding& finding) { return finding.kind == kind; }));
}

const char* nameOf(SiteFinding::Kind kind) {
    return kind == SiteFinding::Kind::Error ? "error" : "doubt";
}

/// '#12 "Dormitory 3", /objects/3/use'.
std::string placeOf(const SiteFinding& finding) {
    const std::string object = finding.object.text();
    const std::string pointer = finding.pointer.empty() ? filled(Words::tr("top level")) : finding.pointer;
    return object.empty() ? pointer
                          : filled(Words::tr("%1, %2", "object, place in the file"), object, pointer);
}

std::string messageOf(const SiteFinding& finding) {
    const bool isSentence = finding.kind == SiteFinding::Kind::Doubt && !finding.isOfDrawing;
    return isSentence ? sentenceAndAdvice(finding.message, finding.suggestion)
                      : reasonAndAdvice(finding.message, finding.suggestion);
}

std::string lineOf(const SiteFinding& finding) {
    if (finding.isOfDrawing)
        return filled(Words::tr("doubt: %1 [%2]", "message, code"), messageOf(finding), finding.code);
    const QString line = finding.kind == SiteFinding::Kind::Error
                             ? Words::tr("error: %1: %2 [%3]", "place, message, code")
                             : Words::tr("doubt: %1: %2 [%3]", "place, message, code");
    return filled(line, placeOf(finding), messageOf(finding), finding.code);
}

std::string summary(const SiteFindings& findings) {
    const auto errors = static_cast<int>(countOf(findings, SiteFinding::Kind::Error));
    const std::size_t doubts = countOf(findings, SiteFinding::Kind::Doubt);
    if (errors > 0)
        return filled(errors == 1 ? Words::tr("1 error") : Words::tr("%n errors", "", errors));
    return doubts > 0 ? countedDoubts(doubts) : filled(Words::tr("clean"));
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
    return filled(count == 1 ? Words::tr("1 doubt") : Words::tr("%n doubts", "", static_cast<int>(count)));
}

} // namespace firecheck
