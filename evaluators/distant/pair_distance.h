#pragma once

#include "rules_config/NuxStandardCheckRule.h"

#include <string_view>

class NUXElementObject;

/// A site element and the type identifier it reports, read once for a pair.
struct IdentifiedElement {
    const NUXElementObject* element;
    std::wstring_view type;
};

/// The clear distance in millimetres from a first to a reference element, both as solids 1.0 high. Of the
/// rule only the name is read: it decides which open sheds count.
///
/// kNoBodyDistance when one side has no body: the reference does not count, or its body could not be built.
/// 0.0 without measuring when the first element's type has no measure, when a road or open shed is of another
/// class than its identifier says, and when a fire road has no outline; deliberate, so that these pairs
/// offend.
double pairDistance(const IdentifiedElement& first, const IdentifiedElement& reference,
                    const NuxStandardCheckRule& rule);
