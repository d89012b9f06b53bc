#pragma once

#include <optional>
#include <string>
#include <vector>

namespace firecheck {

/// The candidate that `name` was probably meant to be: equal but for letter case, or the one fewest edits
/// away, at most one edit in four letters. The first of equals; nothing when none is near.
std::optional<std::string> nearestName(const std::string& name, const std::vector<std::string>& candidates);

} // namespace firecheck
