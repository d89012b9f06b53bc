#pragma once

#include "engine/NUXRule.h"

/// Judges rules of type "self": one element by itself, or the road network as a whole. Every limit is fixed;
/// of the rule only the name is read.
class NUXElementTypeRule : public NUXRule {
public:
    NUXElementTypeRule();

    /// Leaves the map alone and answers true.
    bool removeWithoutRules(NUXElementObject* element, void* unused,
                            QMap<QString, std::vector<NuxStandardCheckRule>>& rules) override;
    std::vector<NuxStandardCheckRule> check(UdDbBlock* modelSpace, const NuxStandardCheckRule& rule) override;
};
