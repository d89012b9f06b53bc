#pragma once

namespace firecheck {

/// Makes file names, arguments and output UTF-8 whatever the locale says. To be called before there is an
/// application.
void useUtf8();

} // namespace firecheck
