#pragma once

#include <nlohmann/json.hpp>

namespace firecheck {

/// JSON whose objects keep the order in which their keys were written.
using Json = nlohmann::ordered_json;

} // namespace firecheck
