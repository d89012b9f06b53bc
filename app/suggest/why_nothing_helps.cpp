#include "suggest/why_nothing_helps.h"

#include "explain/Words.h"
#include "suggest/action_text.h"
#include "suggest/mend.h"

#include <QString>

#include <algorithm>

namespace firecheck {

using firestandard::Words;
using Test = firestandard::RuleTest;

namespace {

/// Whether any element that the targets are about passes.
bool isAny(const Workbench& bench, const Targets& targets, bool (Workbench::*passes)(std::size_t) const) {
    for (const Offence& offence : targets)
        for (const long long handle : {offence.element, offence.other})
            if (const auto index = bench.site().indexOf(handle); index && (bench.*passes)(*index))
                return true;
    return false;
}

bool isTakenForGranted(const Workbench& bench, const Targets& targets) {
    return std::any_of(targets.begin(), targets.end(), [&](const Offence& offence) {
        const JudgedValue* value = bench.value(offence);
        return !value || !value->contact;
    });
}

/// Whether what hangs may be raised, or laid in the ground.
bool mayHangElsewhere(const Workbench& bench, const Targets& targets, Test test) {
    const Offence& first = *targets.begin();
    const auto index = bench.site().indexOf(test == Test::OverheadCable ? first.element : first.other);
    return index && bench.mayChange(*index) && isRaisable(bench.site().element(*index));
}

bool isTouchedByKeptBox(const Workbench& bench, const Targets& targets) {
    const Offence& first = *targets.begin();
    const JudgedValue* value = bench.value(first);
    const auto box = value ? bench.site().indexOf(value->other) : std::nullopt;
    return first.isTouched && box && !bench.mayMove(*box);
}

/// Why nothing was tried; empty where something was.
QString untriedText(const Workbench& bench, const Targets& targets, Test test) {
    const bool mayChange = isAny(bench, targets, &Workbench::mayChange);
    const bool mayMove = isAny(bench, targets, &Workbench::mayMove);
    switch (test) {
    case Test::Distance:
        if (isTakenForGranted(bench, targets))
            return Words::tr("the rule takes the distance for granted, so that no move changes it");
        return mayMove ? QString() : Words::tr("neither of the elements may be moved");
    case Test::OverheadCable:
    case Test::FireRoadHeadroom:
        if (!mayChange)
            return Words::tr("the elements are to stay as they are");
        return mayMove || mayHangElsewhere(bench, targets, test)
                   ? QString()
                   : Words::tr("neither of the elements may be moved");
    case Test::DoorToDoor:
    case Test::OneDoorToRoadLoop:
        return Words::tr("a gate's place is its wall's \"doors\" entry and is not searched");
    case Test::RoadLoop:
        return Words::tr("no road of the site closes the loop as a further fire road");
    case Test::RequiredFacility:
        return bench.site().judge().row(*targets.begin())->use.of == firestandard::RequiredUse::Of::FireRoad
                   ? Words::tr("a fire road has to be added: an object of class road with \"fireRoad\": true")
                   : QString();
    case Test::RoadMinWidth:
    case Test::PrefabHouseFloorArea:
    case Test::PrefabHouseRoomArea:
    case Test::PrefabHouseStairs:
        return mayChange ? QString() : Words::tr("the element is to stay as it is");
    case Test::FireExtinguisherBox:
        return !mayMove && isTouchedByKeptBox(bench, targets)
                   ? Words::tr("neither of the elements may be moved")
                   : QString(); // where it lacks a box, one may be added whatever stays
    }
    return {};
}

/// That all tries failed, with the reach where it was a limit to them.
QString failedText(const Workbench& bench, const Targets& targets, std::optional<Test> test) {
    if (test == Test::RequiredFacility)
        if (const QString text = noPlaceText(bench, targets); !text.isEmpty())
            return text;
    if (test == Test::Distance || test == Test::FireExtinguisherBox || test == Test::OverheadCable ||
        test == Test::FireRoadHeadroom)
        return Words::tr("nothing within %1 helps").arg(lengthText(bench.options().reach));
    return Words::tr("nothing helps");
}

/// The keys of the highest counts.
template <class Key> std::vector<Key> mostOften(const std::map<Key, std::size_t>& counts, std::size_t most) {
    std::vector<std::pair<std::size_t, Key>> sorted;
    for (const auto& [key, count] : counts)
        sorted.emplace_back(count, key);
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<Key> keys;
    for (std::size_t i = 0; i < std::min(most, sorted.size()); ++i)
        keys.push_back(sorted[i].second);
    return keys;
}

QString listed(const QStringList& names) {
    return names.size() == 2 ? Words::tr("%1 or %2").arg(names[0], names[1]) : names.value(0);
}

QString withObstacles(const QString& failed, const TrialSite& site, const Obstacles& obstacles) {
    constexpr std::size_t most = 2;
    QStringList rules;
    for (const std::size_t rule : mostOften(obstacles.rules, most))
        rules << site.judge().rules()[rule].name;
    QStringList elements;
    for (const std::size_t index : mostOften(obstacles.elements, most))
        elements << QString::fromStdString(site.element(index).phrase);
    if (!rules.isEmpty() && !elements.isEmpty())
        return Words::tr("%1: every way breaks %2, or stands in %3")
            .arg(failed, listed(rules), listed(elements));
    if (!rules.isEmpty())
        return Words::tr("%1: every way breaks %2").arg(failed, listed(rules));
    return elements.isEmpty() ? failed
                              : Words::tr("%1: every way stands in %2").arg(failed, listed(elements));
}

} // namespace

std::string whyNothingHelps(Workbench& bench, const Targets& targets) {
    const Obstacles obstacles = bench.takeObstacles();
    const auto test = bench.site().judge().test(*targets.begin());
    const QString untried = test ? untriedText(bench, targets, *test) : QString();
    return (untried.isEmpty() ? withObstacles(failedText(bench, targets, test), bench.site(), obstacles)
                              : untried)
        .toStdString();
}

} // namespace firecheck
