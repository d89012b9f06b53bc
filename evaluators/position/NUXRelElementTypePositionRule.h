#pragma once

#include "engine/NUXRule.h"

/// Judges rules of type "position": where elements may stand in relation to others.
class NUXRelElementTypePositionRule : public NUXRule {
public:
    NUXRelElementTypePositionRule();

    /// Leaves the map alone and answers true.
    bool removeWithoutRules(NUXElementObject* element, void* unused,
                            QMap<QString, std::vector<NuxStandardCheckRule>>& rules) override;
    std::vector<NuxStandardCheckRule> check(UdDbBlock* modelSpace, const NuxStandardCheckRule& rule) override;
};
