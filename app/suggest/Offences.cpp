#include "suggest/Offences.h"

namespace firecheck {

namespace {

constexpr double kRounding = 1e-3; // mm, m²

} // namespace

OffenceDifference differenceBetween(const Offences& before, const Offences& after) {
    OffenceDifference difference;
    for (const auto& [offence, excess] : before) {
        const auto now = after.find(offence);
        if (now == after.end())
            difference.removed.push_back(offence);
        else if (now->second > excess + kRounding)
            difference.worse.push_back(offence);
    }
    for (const auto& entry : after)
        if (before.count(entry.first) == 0)
            difference.added.push_back(entry.first);
    return difference;
}

} // namespace firecheck
