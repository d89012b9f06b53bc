#pragma once

#include "geometry/CBody.h"

#include <memory>
#include <optional>
#include <vector>

namespace firestandard {

/// Bodies that belong to the list, one as a rule; no entry of a list that is measured may be null.
using BodyList = std::vector<std::unique_ptr<hrx::CBody>>;

/// What minBodyDistance answers when a side has no body: farther than any distance.
inline constexpr double kNoBodyDistance = 1e100;

/// The least distance between two sides, in millimetres, and a closest point on each.
struct Contact {
    double distance = 0.0;
    hrx::CVec3<double> onFirst{0.0, 0.0, 0.0};
    hrx::CVec3<double> onSecond{0.0, 0.0, 0.0};
};

/// The contact of the nearest pair of bodies, the first of several; nothing when a side has no body, or none
/// that can be measured. Every pair is measured, also after one that touches.
std::optional<Contact> leastContact(const BodyList& first, const BodyList& second);

} // namespace firestandard

/// The least distance between a body of `first` and one of `second`, in millimetres, 0 when any two touch or
/// overlap. Both lists are consumed.
double minBodyDistance(firestandard::BodyList first, firestandard::BodyList second);

/// Deletes every body of both lists and empties them.
void deleteBodies(firestandard::BodyList& first, firestandard::BodyList& second);
