#pragma once

#include "command_line/Command.h"

namespace firecheck {

/// The help of the program: every command with its summary.
std::string helpText();

/// The usage of one command, what it does, and its options.
std::string helpText(const Command& command);

} // namespace firecheck
