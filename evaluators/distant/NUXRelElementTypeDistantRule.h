#pragma once

#include "engine/NUXRule.h"

/// Judges rules of type "distant": clear distances between elements of two types.
class NUXRelElementTypeDistantRule : public NUXRule {
public:
    NUXRelElementTypeDistantRule();

    /// Leaves the map alone and answers true.
    bool removeWithoutRules(NUXElementObject* element, void* unused,
                            QMap<QString, std::vector<NuxStandardCheckRule>>& rules) override;
    std::vector<NuxStandardCheckRule> check(UdDbBlock* modelSpace, const NuxStandardCheckRule& rule) override;
};
