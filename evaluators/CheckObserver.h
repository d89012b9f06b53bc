#pragma once

#include "site/min_body_distance.h"
#include "site/outlines.h"

#include <optional>

struct NuxStandardCheckRule;
class UdDbObject;

namespace firestandard {

/// What a rule measures, with the unit in which it is told.
enum class Quantity {
    Distance,  ///< mm, between two elements
    Clearance, ///< mm, from the room above a fire road
    Width,     ///< mm
    Area,      ///< m²
    Angle,     ///< radians
};

/// A measured value and the limits within which it passes; an absent limit is not judged by.
struct Measurement {
    Quantity quantity;
    double value;
    std::optional<double> minimum;
    std::optional<double> maximum;
};

inline Measurement atLeast(Quantity quantity, double value, double minimum) {
    return {quantity, value, minimum, std::nullopt};
}
inline Measurement atMost(Quantity quantity, double value, double maximum) {
    return {quantity, value, std::nullopt, maximum};
}

/// One element as a rule judged it, by itself or against another one.
struct Comparison {
    const UdDbObject& element;
    const UdDbObject* other = nullptr;                     ///< null for an element judged by itself
    bool offends = false;                                  ///< takes part in a violation of `element`
    std::optional<Measurement> measurement = std::nullopt; ///< nothing where the rule measures nothing
    std::optional<Contact> contact = std::nullopt;         ///< nothing where no solids were measured
};

/// Why a rule that took up an element, or a pair of them, did not judge it.
enum class NotJudged {
    NoOutline,            ///< it has none, or one without area or with loose ends
    OutlineCrossesItself, ///< two edges of it cross
    NoCentreLine, ///< the centre line of a road of the site could not be joined, which leaves all unjudged
    OnTheGround,  ///< an overhead cable that is not raised
    NoRooms,      ///< an office of fewer than two partitions
    NoNeighbour,  ///< a wall that meets no other wall with one door
    NothingToCompare, ///< the site has nothing fit to be compared with it
    NeverMeasured,    ///< the library has no measure for two elements of these types
    OtherUse,         ///< it is not of the use that the rule's name asks for
    DidNotOpen,       ///< it, or a door of it, refused to open
    NoBoxMeasurable,  ///< no extinguisher box has a measurable distance to it, which ends the rule
    RuleEndedBefore,  ///< the rule ended before it came to the element
};

/// Is told what each rule of a check compared, and what it could not judge, while the check runs. It takes no
/// part in the judgement. All calls between beginRule and endRule are about that rule; every element that
/// the rule took up is told of at least once, as the first of a comparison or as not judged.
class CheckObserver {
public:
    virtual ~CheckObserver() = default;

    /// Before each rule. Whoever throws here, or from any of the others, gives the check up: results and
    /// flags stay as they were.
    virtual void beginRule(const NuxStandardCheckRule& rule) = 0;
    virtual void endRule() = 0;
    virtual void compared(const Comparison& comparison) = 0;
    virtual void notJudged(const UdDbObject& element, NotJudged why) = 0;
    /// Of `element`, which other pairs or notJudged tell more of, this pair was not judged.
    virtual void pairNotJudged(const UdDbObject& element, const UdDbObject& other, NotJudged why) = 0;
};

/// The observer of the checks of this process; null, as at first, when nobody watches. Whoever sets one keeps
/// it alive until it is replaced.
CheckObserver* checkObserver();
void setCheckObserver(CheckObserver* observer);

/// The outlines in plan by which distances to an element are measured, for those who draw what they are told.
/// Null for an element that has none; circles have a radius instead.
struct MeasuredOutlines {
    OutlinePtr footprint;
    OutlinePtr withStairs; ///< of a prefab house, what counts in place of its footprint
};
MeasuredOutlines measuredOutlines(const UdDbObject& element);

} // namespace firestandard
