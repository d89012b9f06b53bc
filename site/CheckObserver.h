#pragma once

#include "geometry/CVec3.h"

struct NuxStandardCheckRule;
class UdDbObject;

/// Is told what a check looks at and measures while it runs, for reports that explain results. It takes no
/// part in the judgement. All calls between beginRule and endRule are about that rule.
class CheckObserver {
public:
    virtual ~CheckObserver() = default;

    virtual void beginRule(const NuxStandardCheckRule& rule) = 0;
    virtual void endRule() = 0;

    /// The rule found this element to judge.
    virtual void found(const UdDbObject& element) = 0;

    /// An element's value as the rule compares it with its limit: square metres for areas, millimetres for
    /// widths.
    virtual void valued(const UdDbObject& element, double value, double limit) = 0;

    /// A distance between two solids in millimetres and a closest point on each.
    virtual void measured(double distance, const hrx::CVec3<double>& onFirst,
                          const hrx::CVec3<double>& onSecond) = 0;

    /// The distance by which the rule judges this pair. When solids were measured for it, `measured` was
    /// called last before, with the same distance.
    virtual void judgedPair(const UdDbObject& element, const UdDbObject& other, double distance) = 0;
};

/// The observer of the checks of this process; null, as at first, when nobody watches. Whoever sets one keeps
/// it alive until it is replaced.
CheckObserver* checkObserver();
void setCheckObserver(CheckObserver* observer);

inline void observeFound(const UdDbObject& element) {
    if (CheckObserver* observer = checkObserver())
        observer->found(element);
}

inline void observeValue(const UdDbObject& element, double value, double limit) {
    if (CheckObserver* observer = checkObserver())
        observer->valued(element, value, limit);
}

inline void observePair(const UdDbObject& element, const UdDbObject& other, double distance) {
    if (CheckObserver* observer = checkObserver())
        observer->judgedPair(element, other, distance);
}
