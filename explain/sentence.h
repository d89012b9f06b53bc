#pragma once

#include "explain/CheckReport.h"

namespace firestandard {

/// What is wrong, as a planner would say it, without a full stop: 'dormitory 413 "Row C" stands 3.50 m from
/// dormitory 414; the rule asks for at least 4.00 m'. Names as the site file gives them.
std::string sentenceOf(const CheckReport& report, const NuxStandardCheckRule& record, const Finding& finding);

/// 'dormitory 413 "Row C"'.
std::string labelPhrase(const ElementLabel& label);

/// The same; "element 413" where nothing is known of it.
std::string elementPhrase(const CheckReport& report, long long handle);

} // namespace firestandard
