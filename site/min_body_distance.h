#pragma once

#include "geometry/CBody.h"

#include <boost/container/small_vector.hpp>

#include <memory>

/// Bodies that belong to the list, one as a rule; no entry of a list that is measured may be null.
using BodyList = boost::container::small_vector<std::unique_ptr<hrx::CBody>, 1>;

/// What minBodyDistance answers when a side has no body: farther than any distance.
inline constexpr double kNoBodyDistance = 1e100;

/// The least distance between a body of `first` and one of `second`, in millimetres, 0 when any two touch or
/// overlap. Every pair is measured; both lists are consumed.
double minBodyDistance(BodyList first, BodyList second);

/// Deletes every body of both lists and empties them.
void deleteBodies(BodyList& first, BodyList& second);
