#include "suggest/Workbench.h"

#include <algorithm>
#include <utility>

namespace firecheck {

namespace {

/// What an extinguisher box rule does not come to any more is not mended.
bool isHidden(const Offence& offence, const Verdict& after) {
    return after.unreached.count({offence.rule, offence.element}) > 0;
}

} // namespace

const std::set<std::string>& movableClasses() {
    static const std::set<std::string> classes = {"prefabHouse",
                                                  "closedHouse",
                                                  "openShed",
                                                  "transformerSubstation",
                                                  "totalStepDownSubstation",
                                                  "building",
                                                  "woodYard",
                                                  "templateYard",
                                                  "electricalMechanicalYard",
                                                  "yard",
                                                  "yardMesh",
                                                  "wastePool",
                                                  "towerCrane",
                                                  "poster",
                                                  "extinguisherBox",
                                                  "model",
                                                  "sizelessModel"};
    return classes;
}

const std::set<std::string>& unmovableClasses() {
    static const std::set<std::string> classes = {"wall", "door", "element", "drawing"};
    return classes;
}

Workbench::Workbench(TrialSite& site, const SuggestOptions& options)
    : m_site(site), m_options(options), m_ground(std::make_unique<Ground>(site)) {}

bool Workbench::mayChange(std::size_t index) const {
    const TrialElement& element = m_site.element(index);
    return m_options.kept.count(element.handle) == 0 && !m_site.object(index).value("refusesToOpen", false);
}

bool Workbench::mayMove(std::size_t index) const {
    const std::string& className = m_site.element(index).className;
    return mayChange(index) &&
           (movableClasses().count(className) > 0 || m_options.movable.count(className) > 0);
}

const JudgedValue* Workbench::value(const Offence& offence) const {
    Offence measured = offence;
    measured.isTouched = false;
    const auto& values = m_site.verdict().values;
    const auto found = values.find(measured);
    return found == values.end() ? nullptr : &found->second;
}

bool Workbench::meets(const OffenceDifference& difference, const Targets& targets) {
    const auto removed = static_cast<std::size_t>(
        std::count_if(difference.removed.begin(), difference.removed.end(),
                      [&](const Offence& offence) { return targets.count(offence) > 0; }));
    if (removed < targets.size())
        return false;
    for (const auto* offences : {&difference.added, &difference.worse})
        for (const Offence& offence : *offences)
            ++m_obstacles.rules[offence.rule];
    return difference.added.empty() && difference.worse.empty();
}

std::optional<Proposal> Workbench::verified(const Change& change, const Action& action,
                                            const Targets& targets) {
    Verdict after = m_site.verdictWith(change, targets);
    OffenceDifference difference = differenceBetween(m_site.verdict().offences, after.offences);
    auto& removed = difference.removed;
    removed.erase(std::remove_if(removed.begin(), removed.end(),
                                 [&](const Offence& offence) { return isHidden(offence, after); }),
                  removed.end());
    if (!meets(difference, targets))
        return std::nullopt;
    return Proposal{change, action, std::move(removed), std::move(after)};
}

void Workbench::apply(const Proposal& proposal) {
    m_site.apply(proposal.change, proposal.after);
    m_ground = std::make_unique<Ground>(m_site);
}

Obstacles Workbench::takeObstacles() {
    return std::exchange(m_obstacles, {});
}

} // namespace firecheck
