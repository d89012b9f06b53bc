#pragma once

#include "engine/NUXRule.h"

#include <memory>
#include <vector>

class NUXRoadObject;
class UdDbObject;

namespace hrx {
class CCurve2d;
}

/// Judges rules of type "self": one element by itself, or the road network as a whole. Every limit is fixed;
/// of the rule only the name is read.
class NUXElementTypeRule : public NUXRule {
public:
    NUXElementTypeRule();

    /// Leaves the map alone and answers true.
    bool removeWithoutRules(NUXElementObject* element, void* unused,
                            QMap<QString, std::vector<NuxStandardCheckRule>>& rules) override;
    std::vector<NuxStandardCheckRule> check(UdDbBlock* modelSpace, const NuxStandardCheckRule& rule) override;

private:
    using ElementTest = bool (*)(const NUXElementObject* element);
    using Curves = std::vector<std::unique_ptr<hrx::CCurve2d>>;

    /// The test that judges one element under a rule of this name; null when there is none.
    static ElementTest elementTest(const QString& ruleName);

    // Each in the file that is named after its rule. A null element, and one of another class, offends
    // nothing.
    static bool isFloorAreaExceeded(const NUXElementObject* element);
    static bool isRoomAreaExceeded(const NUXElementObject* element);
    static bool isStairsMissing(const NUXElementObject* element);
    static bool isFireRoadTooNarrow(const NUXElementObject* element);
    static bool isFireRoadLoopClosed(const UdDbBlock& modelSpace);
    static bool roadsFormLoop(std::vector<const NUXRoadObject*> roads);
    static bool isRoadLoopClosed(const UdDbBlock& modelSpace);
    static bool curvesFormClosedLoop(const Curves& curves);
};
