#pragma once

#include "json/Json.h"

namespace firecheck {

/// Whether the keys of an object that say where it lies are points, numbers and lists as site files have
/// them, as far as there are any. Attributes and extended data may give others, which the reader of sites
/// refuses.
bool hasSoundGeometry(const Json& object);

} // namespace firecheck
