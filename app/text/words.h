#pragma once

#include "explain/Words.h"

namespace firecheck {

// Sentences for people, as explain/Words.h has them.
using firestandard::filled;
using firestandard::placed;
using firestandard::Words;

} // namespace firecheck
