#pragma once

#include "json/Json.h"

namespace firecheck {

/// The sentences of the page in the language in use, by their English:
/// {"language": "zh_CN", "sentences": {"Save": "..."}}.
Json pageWords();

} // namespace firecheck
