#pragma once

#include "command_line/Options.h"

namespace firecheck {

/// Throws InputError when writing what a command is asked for would lose something: an output that is one of
/// its inputs or another output, by whatever names, or an existing file in place of accepted violations whose
/// reasons were not read. Devices and pipes lose nothing. Nor can standard input be read twice.
void requireSafeOutputs(const Options& options, const Command& command);

} // namespace firecheck
