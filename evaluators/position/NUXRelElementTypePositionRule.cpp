#include "evaluators/position/NUXRelElementTypePositionRule.h"

// Deliberate: this evaluator sets no label and keeps the base's "RuleType".
NUXRelElementTypePositionRule::NUXRelElementTypePositionRule() = default;

bool NUXRelElementTypePositionRule::removeWithoutRules(NUXElementObject*, void*,
                                                       QMap<QString, std::vector<NuxStandardCheckRule>>&) {
    return true;
}

std::vector<NuxStandardCheckRule> NUXRelElementTypePositionRule::check(UdDbBlock*,
                                                                       const NuxStandardCheckRule&) {
    return {};
}
