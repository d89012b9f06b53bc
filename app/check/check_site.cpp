#include "check/check_site.h"

#include "check/CurrentDocument.h"
#include "explain/element_noun.h"
#include "report/plan/plan_shapes.h"
#include "text/words.h"

namespace firecheck {

namespace {

std::string nameOf(const Site& site, long long handle) {
    const auto known = site.labels.find(handle);
    return known == site.labels.end() ? std::string() : known->second.name;
}

std::optional<PlanPoint> middleOf(const hrx::CBox2d& box) {
    if (!(box.low.x <= box.high.x))
        return std::nullopt;
    return PlanPoint{(box.low.x + box.high.x) * 0.5 * kMetresPerMillimetre,
                     (box.low.y + box.high.y) * 0.5 * kMetresPerMillimetre};
}

/// Adds what the site file and the plan know.
void complete(ElementLabel& label, const CurrentDocument& document, const Site& site) {
    if (const UdDbObject* object = document.object(label.handle))
        label.place = middleOf(planShapeOf(*object).box);
    const auto known = site.labels.find(label.handle);
    if (known != site.labels.end())
        label.className = known->second.className;
}

/// What stands in the plan: the name without its remarks in brackets, else noun and handle.
std::string planLabel(const std::string& name, const std::string& noun, const PlanShape& shape) {
    const std::string handle = std::to_string(shape.handle);
    if (shape.kind == PlanKind::Model || shape.kind == PlanKind::Other)
        return handle;
    const QString shortName = QString::fromStdString(name).section('(', 0, 0).trimmed();
    return shortName.isEmpty() ? filled(Words::tr("%1 %2", "noun, handle"), noun, handle)
                               : shortName.toStdString();
}

std::vector<PlanShape> plan(const CurrentDocument& document, const Site& site) {
    std::vector<PlanShape> shapes;
    for (const auto& object : document.objects()) {
        PlanShape shape = planShapeOf(*object);
        if (shape.paths.empty())
            continue;
        const std::string noun = firestandard::elementNoun(*object);
        const std::string name = nameOf(site, shape.handle);
        shape.title = name.empty()
                          ? filled(Words::tr("%1 %2", "noun, handle"), noun, shape.handle)
                          : filled(Words::tr("%1 %2 \"%3\"", "noun, handle, name"), noun, shape.handle, name);
        shape.label = planLabel(name, noun, shape);
        shapes.push_back(std::move(shape));
    }
    return shapes;
}

} // namespace

SiteReport checkSite(Site site, const std::string& fileName, const RuleMap&,
                     const firestandard::CheckProgress& progress) {
    const CurrentDocument document(std::move(site.document));
    SiteReport report;
    static_cast<firestandard::CheckReport&>(report) =
        firestandard::explainCheck([&](long long handle) { return nameOf(site, handle); }, progress).value();
    report.fileName = fileName;
    report.siteName = site.name;
    report.objectCount = document.objects().size();
    for (ElementLabel& label : report.elements)
        complete(label, document, site);
    for (ElementLabel& label : report.judgedByNoRule)
        complete(label, document, site);
    for (const auto& object : document.objects())
        if (!object->opens())
            report.notJudged.push_back({filled(Words::tr("object #%1"), object->Handle().GetID()),
                                        filled(Words::tr("it does not open"))});
    report.plan = plan(document, site);
    return report;
}

} // namespace firecheck
