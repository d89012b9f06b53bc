#pragma once

#include "rules_config/NuxStandardCheckRule.h"

class NUXElementObject;

/// The clear distance in millimetres from a first to a reference element, both as solids 1.0 high. Of the
/// rule only the name is read: it decides which open sheds count.
///
/// kNoBodyDistance when one side has no body: the reference does not count, or its body could not be built.
/// 0.0 without measuring when the first element's type has no measure, when a road or open shed is of another
/// class than its identifier says, and when a fire road has no outline; deliberate, so that these pairs
/// offend.
double pairDistance(const NUXElementObject* first, const NUXElementObject* reference,
                    const NuxStandardCheckRule& rule);
