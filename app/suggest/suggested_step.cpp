#include "suggest/suggested_step.h"

#include "suggest/action_text.h"

namespace firecheck {

using firestandard::kMetresPerMillimetre;
using firestandard::PlanPoint;

namespace {

std::optional<PlanPoint> middleOf(const PlanShape& shape) {
    if (shape.paths.empty())
        return std::nullopt;
    const hrx::CVec2<double> middle = (shape.box.low + shape.box.high) * (0.5 * kMetresPerMillimetre);
    return PlanPoint{middle.x, middle.y};
}

/// Keys with other values. No change takes a key away.
Json changedKeys(const Json& before, const Json& after) {
    Json keys = Json::object();
    for (const auto& [key, value] : after.items())
        if (!before.contains(key) || before.at(key) != value)
            keys[key] = value;
    return keys;
}

SuggestedObject suggestedObject(const TrialSite& site, const ObjectChange& change) {
    const TrialElement after = site.elementOf(change.object);
    SuggestedObject object{after.handle, after.className, !change.index,
                           change.index ? changedKeys(site.object(*change.index), change.object)
                                        : change.object};
    object.outline = after.shape.paths;
    object.to = middleOf(after.shape);
    if (change.index)
        object.from = middleOf(site.element(*change.index).shape);
    return object;
}

} // namespace

SuggestedRemoval suggestedRemoval(const TrialSite& site, const Offence& offence) {
    return {site.judge().rule(offence).name.toStdString(), offence.element, offence.other};
}

SuggestedStep suggestedStep(const TrialSite& site, const Proposal& proposal, const Targets& targets) {
    SuggestedStep step;
    step.kind = actionName(proposal.action.kind);
    if (proposal.action.kind == Action::Kind::Move)
        step.move = PlanPoint{double(proposal.action.move.dx) * kMetresPerMillimetre,
                              double(proposal.action.move.dy) * kMetresPerMillimetre};
    for (const ObjectChange& change : proposal.change)
        step.objects.push_back(suggestedObject(site, change));
    for (const Offence& offence : proposal.removed)
        step.removes.push_back(suggestedRemoval(site, offence));
    for (Offence offence : targets) {
        offence.isTouched = false;
        const auto found = proposal.after.values.find(offence);
        if (found == proposal.after.values.end())
            continue;
        const bool isArea = found->second.measurement.quantity == firestandard::Quantity::Area;
        step.values.push_back({site.judge().rule(offence).name.toStdString(), offence.element, offence.other,
                               found->second.measurement.value * (isArea ? 1.0 : kMetresPerMillimetre),
                               isArea});
    }
    step.sentence = proposalText(site, proposal, targets);
    return step;
}

} // namespace firecheck
