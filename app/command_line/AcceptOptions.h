#pragma once

#include "check/accept_file.h"
#include "command_line/Options.h"

#include <optional>

namespace firecheck {

/// What --accept and --write-accept do with the report of the one site that they go with. Throws InputError
/// for several sites, and for a file that cannot be used.
class AcceptOptions {
public:
    explicit AcceptOptions(const Options& options);

    /// Marks what is accepted, and writes the file that is asked for.
    void applyTo(SiteReport& report) const;

private:
    std::vector<Acceptance> m_acceptances;
    std::optional<QString> m_target;
};

} // namespace firecheck
