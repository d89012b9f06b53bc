#include "command_line/commands.h"
#include "text/printable.h"

#include <cstdio>

namespace firecheck {

void complain(const std::string& message) {
    std::fprintf(stderr, "firecheck: %s\n", printable(message).c_str());
}

} // namespace firecheck
