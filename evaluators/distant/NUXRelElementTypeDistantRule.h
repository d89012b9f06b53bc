#pragma once

#include "engine/NUXRule.h"

/// Judges rules of type "distant": clear distances between elements of two types. Each violation names one
/// first element and, in model-space order, the reference elements whose distance to it breaks the rule.
class NUXRelElementTypeDistantRule : public NUXRule {
public:
    NUXRelElementTypeDistantRule();

    /// Leaves the map alone and answers true.
    bool removeWithoutRules(NUXElementObject* element, void* unused,
                            QMap<QString, std::vector<NuxStandardCheckRule>>& rules) override;

    /// Prefab houses among themselves, and substations among themselves, are spaced pair by pair; for any
    /// other two types every first element is measured against every reference element.
    std::vector<NuxStandardCheckRule> check(UdDbBlock* modelSpace, const NuxStandardCheckRule& rule) override;
};
