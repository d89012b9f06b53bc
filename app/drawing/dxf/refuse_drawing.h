#pragma once

#include "InputError.h"

#include <string>

namespace firecheck {

/// Ends the reading of a drawing at one of its lines, with what was expected there.
[[noreturn]] inline void refuseDrawing(const std::string& fileName, int line, const std::string& reason) {
    throw InputError(fileName + ":" + std::to_string(line) + ": " + reason);
}

} // namespace firecheck
