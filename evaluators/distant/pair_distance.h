#pragma once

#include "evaluators/CheckObserver.h"
#include "evaluators/rule_catalogue.h"

#include <string_view>

class NUXElementObject;

namespace firestandard {

/// A site element and the type identifier it reports, read once for a pair.
struct IdentifiedElement {
    const NUXElementObject* element;
    std::wstring_view type;
};

/// What a pair measures.
struct PairDistance {
    double distance;                 ///< mm; kNoBodyDistance when there is a reason
    std::optional<Contact> contact;  ///< nothing where the distance is none or not that of two solids
    std::optional<NotJudged> reason; ///< why there is no distance
    bool isFirstAtFault = false;     ///< the reason is the first element's, whatever the reference
};

} // namespace firestandard

/// The clear distance in millimetres from a first to a reference element, both as solids 1.0 high. `row` is
/// the catalogue's of the rule's name, which decides the open sheds that count; null for a name of the rule
/// file's own, under which none does.
///
/// kNoBodyDistance when one side has no body: the reference does not count, or its body could not be built.
/// 0.0 without measuring when the first element's type has no measure, when a road or open shed is of another
/// class than its identifier says, and when a fire road has no outline; deliberate, so that these pairs
/// offend and somebody looks at them.
firestandard::PairDistance pairDistance(const firestandard::IdentifiedElement& first,
                                        const firestandard::IdentifiedElement& reference,
                                        const firestandard::RuleRow* row);
