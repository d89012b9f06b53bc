#pragma once

#include <map>
#include <tuple>
#include <vector>

namespace firecheck {

/// One thing that a rule finds fault with: of a distance rule each pair, of an extinguisher box rule the
/// element whatever the boxes are.
struct Offence {
    std::size_t rule = 0;   ///< by its number
    long long element = 0;  ///< 0 for the site as a whole
    long long other = 0;    ///< 0 for none
    bool isTouched = false; ///< by an extinguisher box, rather than too far from all of them

    friend bool operator<(const Offence& a, const Offence& b) {
        return std::tie(a.rule, a.element, a.other, a.isTouched) <
               std::tie(b.rule, b.element, b.other, b.isTouched);
    }
    friend bool operator==(const Offence& a, const Offence& b) { return !(a < b) && !(b < a); }
};

/// Each with how far it is beyond the limit: mm, or m² of areas; 0 where nothing is measured.
using Offences = std::map<Offence, double>;

/// What is different in a second check.
struct OffenceDifference {
    std::vector<Offence> removed;
    std::vector<Offence> added;
    std::vector<Offence> worse;
};

/// What is farther beyond its limit by no more than rounding may do is not worse.
OffenceDifference differenceBetween(const Offences& before, const Offences& after);

} // namespace firecheck
