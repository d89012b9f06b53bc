#pragma once

#include "check/accept_file.h"
#include "command_line/Options.h"

#include <optional>

namespace firecheck {

/// What --accept and --write-accept do with the reports of the sites that they go with. Throws InputError for
/// a file that cannot be used.
class AcceptOptions {
public:
    explicit AcceptOptions(const Options& options);

    /// Marks what is accepted.
    void applyTo(SiteReport& report);

    /// Takes up what is reported for the file that is asked for.
    void keep(const SiteReport& report);

    /// Writes the file that is asked for, once all sites were looked at.
    void write() const;

private:
    std::vector<std::string> m_sites;
    std::vector<Acceptance> m_acceptances;
    std::vector<std::string> m_ofOtherSites; ///< until some report has told them
    AcceptFileText m_new;
    std::optional<QString> m_target;
};

} // namespace firecheck
