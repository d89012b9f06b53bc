#pragma once

#include "explain/CheckReport.h"

#include <functional>
#include <optional>
#include <string>

namespace firestandard {

/// What people call an element beside its kind, UTF-8; empty for one without a name.
using NameOfElement = std::function<std::string(long long handle)>;

/// How far a check has come.
struct CheckStep {
    std::size_t judged; ///< rules
    std::size_t rules;  ///< in all
    const NuxStandardCheckRule& next;
};

/// Is told before each rule. A check goes on when it answers true.
using CheckProgress = std::function<bool(const CheckStep& step)>;

/// Runs the check engine on the current document and explains what it found. Results and flags of the engine
/// change as by DoCheck(). Nothing, with results and flags as they were, when there is no document with a
/// model space or `goOn` gave the check up. Either function may be empty. What they throw gives the check up
/// as well, and reaches the caller.
std::optional<CheckReport> explainCheck(const NameOfElement& nameOf = {}, const CheckProgress& goOn = {});

} // namespace firestandard
