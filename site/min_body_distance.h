#pragma once

#include "geometry/CBody.h"

#include <memory>
#include <vector>

/// Bodies that belong to the list; no entry of a list that is measured may be null.
using BodyList = std::vector<std::unique_ptr<hrx::CBody>>;

/// What minBodyDistance answers when a side has no body: farther than any distance.
inline constexpr double kNoBodyDistance = 1e100;

/// The least distance between a body of `first` and one of `second`, in millimetres, 0 when any two touch or
/// overlap. Every pair is measured; both lists are consumed.
double minBodyDistance(BodyList first, BodyList second);

/// Deletes every body of both lists and empties them.
void deleteBodies(BodyList& first, BodyList& second);
