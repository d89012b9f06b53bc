#pragma once

#include "explain/explain_check.h"

#include <chrono>
#include <string>

namespace firecheck {

/// Tells people at a terminal, on standard error, how far a check has come: nothing for the first two
/// seconds, then one line that is written over and removed at the end.
class Progress {
public:
    explicit Progress(std::string fileName);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void tell(const firestandard::CheckStep& step);
    /// Before the next of all that is gone through.
    void tell(std::size_t done, std::size_t all, const std::string& next);

private:
    void write(const std::string& line);

    std::string m_fileName;
    bool m_isTerminal;
    bool m_hasWritten = false;
    std::chrono::steady_clock::time_point m_begin = std::chrono::steady_clock::now();
};

} // namespace firecheck
