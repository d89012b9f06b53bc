#include "rules_page/case_plan.h"

#include "report/plan/plan_shapes.h"
#include "report/plan/plan_svg.h"
#include "site_file/site_reader.h"

namespace firecheck {

namespace {

/// A report without a check: what can be drawn of the site.
SiteReport drawnSite(const Json& siteJson, const std::string& name) {
    const Site site = readSite(siteJson);
    SiteReport report;
    report.siteName = name;
    for (const auto& object : site.document->GetModelSpace()->objects()) {
        PlanShape shape = planShapeOf(*object);
        if (shape.paths.empty())
            continue;
        shape.label = std::to_string(shape.handle);
        shape.title = site.labels.at(shape.handle).className + " " + shape.label;
        report.plan.push_back(std::move(shape));
    }
    return report;
}

} // namespace

std::string basePlan(const CaseFile& file) {
    return planSvgFile(drawnSite(file.site, file.title)).toStdString();
}

std::string casePlan(const Case& judged) {
    SiteReport report = drawnSite(judged.site, judged.sentence);
    std::vector<NuxStandardCheckRule> records;
    for (const ExpectedViolation& violation : judged.violations) {
        Finding finding;
        finding.index = records.size();
        report.findings.push_back(finding);
        records.push_back(judged.rule);
        records.back().handle = violation.element;
    }
    report.counts = {{judged.rule.name, records.size()}};
    report.results = {{judged.rule.name, std::move(records)}};
    return planSvgFile(report).toStdString();
}

} // namespace firecheck
